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

    RegHandle Created(std::string_view path = kPath) {
        RegHandle key = 0;
        EXPECT_EQ(registry_.CreateKey(kCurrentUser, path, key), kRegSuccess);
        EXPECT_NE(key, 0U);
        return key;
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

    std::int32_t Query(RegHandle key, std::string_view name) {
        RegType type = RegType::kString;
        std::vector<std::byte> data;
        return registry_.QueryValue(key, name, type, data);
    }

    Host host_;
    Registry& registry_ = host_.Subject();
};

TYPED_TEST_SUITE_P(RegistryContract);

TYPED_TEST_P(RegistryContract, OpensWhatWasCreatedWithoutRegardToCase) {
    RegHandle key = 0;
    EXPECT_EQ(this->registry_.OpenKey(kCurrentUser, this->kPath, key), kRegFileNotFound);
    EXPECT_EQ(this->registry_.CloseKey(this->Created()), kRegSuccess);

    EXPECT_EQ(this->registry_.OpenKey(kCurrentUser, "SOFTWARE\\morpho test\\WINDOW", key),
              kRegSuccess);
    EXPECT_EQ(this->registry_.CloseKey(key), kRegSuccess);
    EXPECT_EQ(this->registry_.OpenKey(kCurrentUser, "Software\\Morpho Test", key), kRegSuccess)
        << "parents are created, too";
    RegHandle below = 0;
    EXPECT_EQ(this->registry_.OpenKey(key, "Window", below), kRegSuccess);
    EXPECT_EQ(this->registry_.CloseKey(below), kRegSuccess);
    EXPECT_EQ(this->registry_.CloseKey(key), kRegSuccess);
}

TYPED_TEST_P(RegistryContract, KeepsValuesOfEveryTypeByteForByte) {
    const RegHandle key = this->Created();
    const std::string binary("\0\1\xff\r\n\"\\", 7);
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
        {"Bytes", RegType::kBinary, binary},
        {"Number", RegType::kDword, std::string("\3\0\0\0", 4)},
        {"List", RegType::kMultiString, std::string("a\0b\0", 4)},
        {"Back\\slash=\"name\"", RegType::kString, "x"},
    };
    for (const auto& value : values)
        EXPECT_EQ(this->Set(key, value.name, value.type, value.data), kRegSuccess) << value.name;
    for (const auto& value : values)
        this->ExpectValue(key, value.name, value.type, value.data);
    EXPECT_EQ(this->registry_.CloseKey(key), kRegSuccess);
}

TYPED_TEST_P(RegistryContract, ReplacesAndDeletesValuesWithoutRegardToCase) {
    const RegHandle key = this->Created();
    this->Set(key, "Splash", RegType::kString, "1");
    this->Set(key, "SPLASH", RegType::kString, "0");
    this->ExpectValue(key, "splash", RegType::kString, "0");

    EXPECT_EQ(this->registry_.DeleteValue(key, "sPLASH"), kRegSuccess);
    EXPECT_EQ(this->Query(key, "Splash"), kRegFileNotFound);
    EXPECT_EQ(this->registry_.DeleteValue(key, "Splash"), kRegFileNotFound);
    EXPECT_EQ(this->registry_.CloseKey(key), kRegSuccess);
}

TYPED_TEST_P(RegistryContract, RefusesHandlesThatAreNotOpen) {
    const RegHandle key = this->Created();
    EXPECT_EQ(this->registry_.CloseKey(key), kRegSuccess);

    EXPECT_EQ(this->registry_.CloseKey(key), kRegInvalidHandle);
    EXPECT_EQ(this->Query(key, "Left"), kRegInvalidHandle);
    EXPECT_EQ(this->Set(key, "Left", RegType::kString, "1"), kRegInvalidHandle);
    EXPECT_EQ(this->registry_.DeleteValue(key, "Left"), kRegInvalidHandle);
    RegHandle below = 0;
    EXPECT_EQ(this->registry_.OpenKey(key, "x", below), kRegInvalidHandle);
}

REGISTER_TYPED_TEST_SUITE_P(RegistryContract, OpensWhatWasCreatedWithoutRegardToCase,
                            KeepsValuesOfEveryTypeByteForByte,
                            ReplacesAndDeletesValuesWithoutRegardToCase,
                            RefusesHandlesThatAreNotOpen);

}  // namespace morpho::test
