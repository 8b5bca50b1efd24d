#include "shared/reg_key.h"

#include <gtest/gtest.h>

#include <array>

#include "support/fake_platform.h"

namespace morpho::test {
namespace {

const std::string kPath = "Software\\Morpho";

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
};

TEST_F(RegKeyTest, HoldsOneKeyAtATimeAndClosesItAtTheEnd) {
    ExpectError(key_.OpenKey(kCurrentUser, kPath), 2, "System message 2.\r\n");
    EXPECT_TRUE(key_.CreateKey(kCurrentUser, kPath));
    EXPECT_EQ(key_.GetErrorDescription(), "System message 0.\r\n");
    EXPECT_TRUE(key_.OpenKey(kCurrentUser, kPath));
    EXPECT_EQ(registry_.openKeys, 1);
    EXPECT_FALSE(key_.OpenKey(kCurrentUser, "Software\\Nowhere"));
    EXPECT_EQ(key_.hKey(), 0U);
    { EXPECT_TRUE(RegKey(registry_, environment_).CreateKey(kCurrentUser, kPath)); }
    EXPECT_EQ(registry_.openKeys, 0);
}

TEST_F(RegKeyTest, ReadsAndWritesStringsUpToTheFirstNul) {
    registry_.Put(kCurrentUser, kPath, "Plain", std::string("C:\\Temp\0junk", 12));
    ASSERT_TRUE(key_.OpenKey(kCurrentUser, kPath));
    EXPECT_TRUE(key_.QueryValueEx_SZ("plain", text_));
    EXPECT_EQ(text_, "C:\\Temp");
    EXPECT_TRUE(key_.SetValueEx_SZ("nt", "abc"));
    environment_.os.platformId = kWindows9xPlatform;
    EXPECT_TRUE(key_.SetValueEx_SZ("9x", "abc"));
    EXPECT_EQ(registry_.UserText(kPath, "nt"), "abc");
    EXPECT_EQ(registry_.UserText(kPath, "9x"), std::string("abc\0", 4));
}

TEST_F(RegKeyTest, ReadsAClassesDefaultValueWithoutAnOpenKey) {
    registry_.Put(kClassesRoot, "Thing.1\\CLSID", "", "{1}");
    registry_.Put(kClassesRoot, "Bare", "other", "x");
    registry_.Put(kClassesRoot, "Number", "", "x", RegType::kDword);
    EXPECT_TRUE(key_.QueryValue("Thing.1\\CLSID", text_, kClassesRoot));
    EXPECT_EQ(text_, "{1}");
    ExpectError(key_.QueryValue("Number", text_, kClassesRoot), 13, "System message 13.\r\n");
    EXPECT_TRUE(key_.QueryValue("Bare", text_, kClassesRoot));
    EXPECT_EQ(text_, "");
}

TEST_F(RegKeyTest, SaysWhatWasAskedWrongly) {
    const char* const noKey = "Internal error: Registry operation without opening a key.";
    const char* const wrongType = "Internal error: Data type supplied is invalid.";
    ExpectError(key_.CloseKey(), -1, noKey);
    registry_.Put(kCurrentUser, kPath, "Large", std::string(256, 'x'), RegType::kBinary);
    ASSERT_TRUE(key_.OpenKey(kCurrentUser, kPath));
    ExpectError(key_.QueryValueEx_SZ("Large", text_), -3, wrongType);
    ExpectError(key_.SetValueEx("v", RegType::kString, {}), -3, wrongType);
    ExpectError(key_.SetValueEx_SZ("v", "text", RegType::kBinary), -3, wrongType);
    ExpectError(key_.QueryValueEx("Large", buffer_, type_), -4,
                "Insufficient buffer length. Please supplu more buffer.");
    EXPECT_EQ(key_.GetErrorData(), 256);
    EXPECT_TRUE(key_.SetValueEx("Large", RegType::kDword, std::as_bytes(std::span("abc"))));
    EXPECT_TRUE(key_.QueryValueEx("Large", buffer_, type_));
    EXPECT_EQ(buffer_[2], std::byte{'c'});
    registry_.closeError = kRegAccessDenied;
    ExpectError(key_.CreateKey(kCurrentUser, kPath), -2,
                "Internal error: Failed to close previous key.\r\nSystem message 5.\r\n");
}

}  // namespace
}  // namespace morpho::test
