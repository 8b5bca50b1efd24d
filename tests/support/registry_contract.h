#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace morpho::test {

// What every Registry promises for the current user's keys. `Host` has Registry& Subject(), in
// which Software\Morpho Test does not exist.
template <typename Host>
class RegistryContract : public ::testing::Test {
  protected:
    static constexpr std::string_view kPath = "Software\\Morpho Test\\Window";

    RegHandle Created() {
        RegHandle key = 0;
        EXPECT_EQ(registry_.CreateKey(kCurrentUser, kPath, key), kRegSuccess);
        EXPECT_NE(key, 0U);
        return key;
    }
    void ExpectOpens(RegHandle root, std::string_view path, std::int32_t code) {
        RegHandle key = 0;
        EXPECT_EQ(registry_.OpenKey(root, path, key), code) << path;
        if (code == kRegSuccess) registry_.CloseKey(key);
    }
    std::int32_t Set(RegHandle key, std::string_view name, RegType type, std::string_view data) {
        return registry_.SetValue(key, name, type, std::as_bytes(std::span(data)));
    }
    void ExpectValue(RegHandle key, std::string_view name, RegType type,
                     std::string_view expected) {
        RegType foundType = RegType::kLink;
        std::vector<std::byte> data;
        ASSERT_EQ(registry_.QueryValue(key, name, foundType, data), kRegSuccess) << name;
        EXPECT_EQ(foundType, type) << name;
        EXPECT_EQ(std::string_view(reinterpret_cast<const char*>(data.data()), data.size()),
                  expected);
    }
    void ExpectNoValue(RegHandle key, std::string_view name, std::int32_t code) {
        RegType type = RegType::kString;
        std::vector<std::byte> data;
        EXPECT_EQ(registry_.QueryValue(key, name, type, data), code);
        EXPECT_EQ(registry_.DeleteValue(key, name), code);
    }

    Host host_;
    Registry& registry_ = host_.Subject();
};

TYPED_TEST_SUITE_P(RegistryContract);

TYPED_TEST_P(RegistryContract, OpensWhatWasCreatedWithoutRegardToCaseAndRefusesWhatIsClosed) {
    this->ExpectOpens(kCurrentUser, this->kPath, kRegFileNotFound);
    const RegHandle key = this->Created();
    this->ExpectOpens(kCurrentUser, "SOFTWARE\\morpho test\\WINDOW", kRegSuccess);
    RegHandle parent = 0;
    EXPECT_EQ(this->registry_.OpenKey(kCurrentUser, "Software\\Morpho Test", parent), kRegSuccess);
    this->ExpectOpens(parent, "Window", kRegSuccess);

    for (const RegHandle open : {parent, key})
        EXPECT_EQ(this->registry_.CloseKey(open), kRegSuccess);
    EXPECT_EQ(this->registry_.CloseKey(key), kRegInvalidHandle);
    this->ExpectNoValue(key, "Left", kRegInvalidHandle);
    EXPECT_EQ(this->Set(key, "Left", RegType::kString, "1"), kRegInvalidHandle);
    this->ExpectOpens(key, "x", kRegInvalidHandle);
}

TYPED_TEST_P(RegistryContract, KeepsValuesOfEveryTypeByteForByte) {
    const RegHandle key = this->Created();
    const struct {
        const char* name;
        RegType type;
        std::string data;
    } values[] = {
        {"Left", RegType::kString, "120"},
        {"Quoted", RegType::kString, "C:\\a\\\"b\"\r\nc"},
        {"", RegType::kString, "the default value"},
        {"Empty", RegType::kString, ""},
        {"Accents", RegType::kString, "caf\xC3\xA9 \xE2\x82\xAC"},
        {"Path", RegType::kExpandString, "%TEMP%\\x"},
        {"Bytes", RegType::kBinary, std::string("\0\1\xff\r\n\"\\", 7)},
        {"Number", RegType::kDword, std::string("\3\0\0\0", 4)},
        {"List", RegType::kMultiString, std::string("a\0b\0", 4)},
        {"Back\\slash=\"name\"", RegType::kString, "x"},
    };
    for (const auto& value : values)
        EXPECT_EQ(this->Set(key, value.name, value.type, value.data), kRegSuccess) << value.name;
    for (const auto& value : values)
        this->ExpectValue(key, value.name, value.type, value.data);

    this->Set(key, "LEFT", RegType::kString, "0");
    this->ExpectValue(key, "left", RegType::kString, "0");
    EXPECT_EQ(this->registry_.DeleteValue(key, "lEFT"), kRegSuccess);
    this->ExpectNoValue(key, "Left", kRegFileNotFound);
}

REGISTER_TYPED_TEST_SUITE_P(RegistryContract,
                            OpensWhatWasCreatedWithoutRegardToCaseAndRefusesWhatIsClosed,
                            KeepsValuesOfEveryTypeByteForByte);

}  // namespace morpho::test
