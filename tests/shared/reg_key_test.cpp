#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "shared/reg_key.h"
#include "support/fake_platform.h"

namespace morpho::test {

namespace {

constexpr const char* kPath = "Software\\Morpho";

class RegKeyTest : public ::testing::Test {
  protected:
    void Put(const char* name, RegType type, std::string_view data) {
        registry_.Put(kCurrentUser, kPath, name, type, std::as_bytes(std::span(data)));
    }

    void ExpectState(std::int32_t lastError, const std::string& description) {
        EXPECT_EQ(key_.GetLastError(), lastError);
        EXPECT_EQ(key_.GetErrorDescription(), description);
    }

    FakeRegistry registry_;
    FakeEnvironment environment_;
    RegKey key_{registry_, environment_};
    std::string text_ = "before";
    RegType type_ = RegType::kLink;
    std::array<std::byte, 10> buffer_{};
};

constexpr const char* kNoKeyText = "Internal error: Registry operation without opening a key.";
constexpr const char* kTypeText = "Internal error: Data type supplied is invalid.";

}  // namespace

TEST_F(RegKeyTest, EveryOperationWithoutAKeySaysSoAndAsksNothing) {
    const auto bytes = std::as_bytes(std::span("x"));
    EXPECT_FALSE(key_.CloseKey());
    EXPECT_FALSE(key_.QueryValue("x", text_));
    EXPECT_FALSE(key_.QueryValueEx("x", buffer_, type_));
    EXPECT_FALSE(key_.QueryValueEx_SZ("x", text_));
    EXPECT_FALSE(key_.SetValueEx("x", RegType::kString, bytes));
    ExpectState(-1, kNoKeyText);
    EXPECT_FALSE(key_.SetValueEx_SZ("x", "x", RegType::kBinary));
    ExpectState(-1, kNoKeyText);
    EXPECT_EQ(registry_.Calls(), 0);
}

TEST_F(RegKeyTest, OpensCreatesAndClosesOneKeyAtATime) {
    EXPECT_FALSE(key_.OpenKey(kCurrentUser, kPath));
    ExpectState(2, "The system cannot find the file specified.\r\n");
    EXPECT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    ExpectState(0, "The operation completed successfully.\r\n");
    EXPECT_TRUE(key_.OpenKey(kCurrentUser, kPath));
    EXPECT_EQ(registry_.OpenKeys(), 1);
    EXPECT_FALSE(key_.OpenKey(kCurrentUser, "Software\\Nowhere"));
    EXPECT_EQ(key_.hKey(), 0U);
    EXPECT_EQ(registry_.OpenKeys(), 0);
}

TEST_F(RegKeyTest, AKeyThatCannotBeClosedStaysOpen) {
    ASSERT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    const RegHandle open = key_.hKey();
    registry_.FailCloses(kRegAccessDenied);
    const char* text = "Internal error: Failed to close previous key.\r\nAccess is denied.\r\n";

    EXPECT_FALSE(key_.OpenKey(kCurrentUser, kPath));
    ExpectState(-2, text);
    EXPECT_FALSE(key_.CreateKey(kCurrentUser, kPath));
    ExpectState(-2, text);
    key_.SetHKey(77);
    ExpectState(-2, text);
    EXPECT_FALSE(key_.CloseKey());
    ExpectState(5, "Access is denied.\r\n");
    EXPECT_EQ(key_.hKey(), open);
}

TEST_F(RegKeyTest, TheObjectClosesTheKeyThatItHoldsOrWasGiven) {
    RegHandle handle = 0;
    ASSERT_EQ(registry_.CreateKey(kCurrentUser, kPath, handle), kRegSuccess);
    {
        RegKey owner(registry_, environment_);
        owner.SetHKey(handle);
        EXPECT_TRUE(owner.SetValueEx_SZ("a", "b"));
    }
    EXPECT_EQ(registry_.OpenKeys(), 0);
}

TEST_F(RegKeyTest, ReadsPlainStringsUpToTheFirstNulAndRefusesOtherTypes) {
    Put("Plain", RegType::kString, std::string_view("C:\\Temp\0junk", 12));
    Put("Expand", RegType::kExpandString, "%TEMP%");
    ASSERT_TRUE(key_.OpenKey(kCurrentUser, kPath));

    EXPECT_TRUE(key_.QueryValueEx_SZ("plain", text_));
    EXPECT_EQ(text_, "C:\\Temp");
    EXPECT_FALSE(key_.QueryValueEx_SZ("Expand", text_));
    ExpectState(-3, kTypeText);
    EXPECT_FALSE(key_.QueryValueEx_SZ("Missing", text_));
    ExpectState(2, "The system cannot find the file specified.\r\n");
    EXPECT_EQ(text_, "C:\\Temp");
}

TEST_F(RegKeyTest, ReadsAnyValueThatFitsTheBuffer) {
    Put("Number", RegType::kDword, std::string_view("\1\2\3\4", 4));
    Put("Large", RegType::kBinary, std::string(256, 'x'));
    ASSERT_TRUE(key_.OpenKey(kCurrentUser, kPath));

    EXPECT_TRUE(key_.QueryValueEx("Number", buffer_, type_));
    EXPECT_EQ(type_, RegType::kDword);
    EXPECT_EQ(buffer_[3], std::byte{4});
    EXPECT_FALSE(key_.QueryValueEx("Large", buffer_, type_));
    ExpectState(-4, "Insufficient buffer length. Please supplu more buffer.");
    EXPECT_EQ(key_.GetErrorData(), 256);
    EXPECT_EQ(buffer_[0], std::byte{1});
}

TEST_F(RegKeyTest, ReadsAClassesDefaultValueWithoutAnOpenKey) {
    registry_.PutString(kClassesRoot, "Thing.1\\CLSID", "", "{1}");
    registry_.PutString(kClassesRoot, "Bare", "other", "x");

    EXPECT_TRUE(key_.QueryValue("Thing.1\\CLSID", text_, kClassesRoot));
    EXPECT_EQ(text_, "{1}");
    EXPECT_TRUE(key_.QueryValue("Bare", text_, kClassesRoot));
    EXPECT_EQ(text_, "");
    EXPECT_FALSE(key_.QueryValue("Missing", text_, kClassesRoot));
    EXPECT_EQ(key_.GetLastError(), 2);
    EXPECT_EQ(registry_.OpenKeys(), 0);
}

TEST_F(RegKeyTest, WritesStringsAndOtherTypesThroughTheirOwnOperations) {
    ASSERT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    const auto bytes = std::as_bytes(std::span("abc"));
    for (const RegType type :
         {RegType::kString, RegType::kExpandString, RegType::kLink, RegType::kMultiString}) {
        EXPECT_FALSE(key_.SetValueEx("v", type, bytes));
        ExpectState(-3, kTypeText);
        EXPECT_TRUE(key_.SetValueEx_SZ("v", "text", type));
    }
    for (const RegType type : {RegType::kBinary, RegType::kDword, static_cast<RegType>(0)}) {
        EXPECT_FALSE(key_.SetValueEx_SZ("v", "text", type));
        ExpectState(-3, kTypeText);
        EXPECT_TRUE(key_.SetValueEx("v", type, bytes));
    }
    registry_.FailWrites(kRegAccessDenied);
    EXPECT_FALSE(key_.SetValueEx_SZ("v", "text"));
    ExpectState(5, "Access is denied.\r\n");
}

TEST_F(RegKeyTest, StoresTheTerminatingNulOnWindows9xOnly) {
    ASSERT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    EXPECT_TRUE(key_.SetValueEx_SZ("nt", "abc"));
    environment_.os.platformId = kWindows9xPlatform;
    EXPECT_TRUE(key_.SetValueEx_SZ("9x", "abc"));

    EXPECT_EQ(registry_.Text(kCurrentUser, kPath, "nt"), "abc");
    EXPECT_EQ(registry_.Text(kCurrentUser, kPath, "9x"), std::string("abc\0", 4));
}

}  // namespace morpho::test
