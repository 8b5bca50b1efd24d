#include "shared/reg_key.h"

#include <gtest/gtest.h>

#include <array>

#include "support/fake_platform.h"

namespace morpho::test {
namespace {

const std::string kPath = "Software\\Morpho";
constexpr const char* kTypeText = "Internal error: Data type supplied is invalid.";

class RegKeyTest : public ::testing::Test {
  protected:
    void ExpectError(bool done, std::int32_t code, const std::string& description) {
        EXPECT_FALSE(done) << description;
        EXPECT_EQ(key_.GetLastError(), code);
        EXPECT_EQ(key_.GetErrorDescription(), description);
    }

    FakeRegistry registry_;
    FakeEnvironment environment_;
    RegKey key_{registry_, environment_};
    std::string text_ = "before";
    RegType type_ = RegType::kLink;
    std::array<std::byte, 10> buffer_{};
    const std::span<const std::byte> bytes_ = std::as_bytes(std::span("abc"));
};

TEST_F(RegKeyTest, EveryOperationWithoutAKeySaysSo) {
    constexpr const char* kText = "Internal error: Registry operation without opening a key.";
    ExpectError(key_.CloseKey(), -1, kText);
    EXPECT_FALSE(key_.OpenKey(kCurrentUser, kPath));  // another error in between
    ExpectError(key_.QueryValue("x", text_), -1, kText);
    ExpectError(key_.QueryValueEx("x", buffer_, type_), -1, kText);
    ExpectError(key_.QueryValueEx_SZ("x", text_), -1, kText);
    ExpectError(key_.SetValueEx("x", RegType::kString, bytes_), -1, kText);
    ExpectError(key_.SetValueEx_SZ("x", "x", RegType::kBinary), -1, kText);
}

TEST_F(RegKeyTest, HoldsOneKeyAtATimeAndClosesItAtTheEnd) {
    ExpectError(key_.OpenKey(kCurrentUser, kPath), 2, "System message 2.\r\n");
    EXPECT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    EXPECT_EQ(key_.GetErrorDescription(), "System message 0.\r\n");
    EXPECT_TRUE(key_.OpenKey(kCurrentUser, kPath));
    EXPECT_EQ(registry_.openKeys, 1);
    EXPECT_FALSE(key_.OpenKey(kCurrentUser, "Software\\Nowhere"));
    EXPECT_EQ(key_.hKey(), 0U);
    EXPECT_EQ(registry_.openKeys, 0);

    RegHandle given = 0;
    ASSERT_EQ(registry_.CreateKey(kCurrentUser, kPath, given), kRegSuccess);
    {
        RegKey owner(registry_, environment_);
        owner.SetHKey(given);
        EXPECT_TRUE(owner.SetValueEx_SZ("a", "b"));
    }
    EXPECT_EQ(registry_.openKeys, 0);
}

TEST_F(RegKeyTest, AKeyThatCannotBeClosedStaysOpen) {
    ASSERT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    const RegHandle open = key_.hKey();
    registry_.closeError = kRegAccessDenied;
    constexpr const char* kText =
        "Internal error: Failed to close previous key.\r\nSystem message 5.\r\n";
    ExpectError(key_.OpenKey(kCurrentUser, kPath), -2, kText);
    ExpectError(key_.CreateKey(kCurrentUser, kPath), -2, kText);
    ExpectError(key_.CloseKey(), 5, "System message 5.\r\n");
    key_.SetHKey(77);
    ExpectError(key_.hKey() != open, -2, kText);
}

TEST_F(RegKeyTest, ReadsStringsUpToTheFirstNulAndAnythingThatFitsTheBuffer) {
    registry_.Put(kCurrentUser, kPath, "Plain", std::string("C:\\Temp\0junk", 12));
    registry_.Put(kCurrentUser, kPath, "Expand", "%TEMP%", RegType::kExpandString);
    registry_.Put(kCurrentUser, kPath, "Number", "\1\2\3\4", RegType::kDword);
    registry_.Put(kCurrentUser, kPath, "Large", std::string(256, 'x'), RegType::kBinary);
    ASSERT_TRUE(key_.OpenKey(kCurrentUser, kPath));

    EXPECT_TRUE(key_.QueryValueEx_SZ("plain", text_));
    ExpectError(key_.QueryValueEx_SZ("Expand", text_), -3, kTypeText);
    ExpectError(key_.QueryValueEx_SZ("Missing", text_), 2, "System message 2.\r\n");
    EXPECT_EQ(text_, "C:\\Temp");

    EXPECT_TRUE(key_.QueryValueEx("Number", buffer_, type_));
    EXPECT_EQ(type_, RegType::kDword);
    EXPECT_EQ(buffer_[3], std::byte{4});
    ExpectError(key_.QueryValueEx("Large", buffer_, type_), -4,
                "Insufficient buffer length. Please supplu more buffer.");
    EXPECT_EQ(key_.GetErrorData(), 256);
    EXPECT_EQ(buffer_[0], std::byte{1});
}

TEST_F(RegKeyTest, ReadsAClassesDefaultValueWithoutAnOpenKey) {
    registry_.Put(kClassesRoot, "Thing.1\\CLSID", "", "{1}");
    registry_.Put(kClassesRoot, "Bare", "other", "x");
    registry_.Put(kClassesRoot, "Number", "", "x", RegType::kDword);
    EXPECT_TRUE(key_.QueryValue("Thing.1\\CLSID", text_, kClassesRoot));
    EXPECT_EQ(text_, "{1}");
    ExpectError(key_.QueryValue("Number", text_, kClassesRoot), 13, "System message 13.\r\n");
    ExpectError(key_.QueryValue("Missing", text_, kClassesRoot), 2, "System message 2.\r\n");
    EXPECT_TRUE(key_.QueryValue("Bare", text_, kClassesRoot));
    EXPECT_EQ(text_, "");
    EXPECT_EQ(registry_.openKeys, 0);
}

TEST_F(RegKeyTest, WritesStringsAndOtherTypesThroughTheirOwnOperations) {
    ASSERT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    for (const RegType type :
         {RegType::kString, RegType::kExpandString, RegType::kLink, RegType::kMultiString}) {
        ExpectError(key_.SetValueEx("v", type, bytes_), -3, kTypeText);
        EXPECT_TRUE(key_.SetValueEx_SZ("v", "text", type));
    }
    for (const RegType type : {RegType::kBinary, RegType::kDword, static_cast<RegType>(0)}) {
        ExpectError(key_.SetValueEx_SZ("v", "text", type), -3, kTypeText);
        EXPECT_TRUE(key_.SetValueEx("v", type, bytes_));
    }
    EXPECT_TRUE(key_.SetValueEx_SZ("nt", "abc"));
    environment_.os.platformId = kWindows9xPlatform;
    EXPECT_TRUE(key_.SetValueEx_SZ("9x", "abc"));
    EXPECT_EQ(registry_.UserText(kPath, "nt"), "abc");
    EXPECT_EQ(registry_.UserText(kPath, "9x"), std::string("abc\0", 4));

    registry_.writeError = kRegAccessDenied;
    ExpectError(key_.SetValueEx_SZ("v", "text"), 5, "System message 5.\r\n");
}

}  // namespace
}  // namespace morpho::test
