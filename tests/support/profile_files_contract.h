#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/profile_files.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// What every ProfileFiles promises. `Host` has ProfileFiles& Subject(), std::string File() (the
// Windows path of a file that does not exist yet, in a folder that does), void Put(bytes), which
// makes these the file's contents, and std::string Bytes(), which gives them.
template <typename Host>
class ProfileFilesContract : public ::testing::Test {
  protected:
    std::string Read(const std::string& section, const std::string& key,
                     std::size_t maxChars = 255) {
        return profiles_.ReadString(host_.File(), section, key, "(none)", maxChars);
    }

    Host host_;
    ProfileFiles& profiles_ = host_.Subject();
};

TYPED_TEST_SUITE_P(ProfileFilesContract);

TYPED_TEST_P(ProfileFilesContract, ReadsTheFirstValueOfTheFirstSectionOfThatName) {
    EXPECT_EQ(this->Read("info", "title"), "(none)");
    this->host_.Put(
        "; a comment\r\n[Info]\r\nTitle = \"Blue  Blends\" \r\nreadonly=true\r\nreadonly=0\r\n"
        "codepage=1252\r\nempty=\r\nsingle='x'\r\nhalf=\"x\r\naccent=caf\xE9\r\n\r\n"
        "[titles]\r\n1033=Blends\r\n[info]\r\nlate=1\r\n");

    EXPECT_EQ(this->Read("info", "title"), "Blue  Blends");
    EXPECT_EQ(this->Read("INFO", "ReadOnly"), "true");
    EXPECT_EQ(this->Read("info", "empty"), "");
    EXPECT_EQ(this->Read("info", "single"), "x");
    EXPECT_EQ(this->Read("info", "half"), "\"x");
    EXPECT_EQ(this->Read("info", "accent"), "caf\xC3\xA9");
    EXPECT_EQ(this->Read("info", "accent", 4), "caf\xC3\xA9");
    EXPECT_EQ(this->Read("info", "title", 4), "Blue");
    EXPECT_EQ(this->Read("titles", "1033"), "Blends");
    EXPECT_EQ(this->Read("info", "1033"), "(none)");
    EXPECT_EQ(this->Read("info", "late"), "(none)");
    EXPECT_EQ(this->Read("extra", "title"), "(none)");
}

TYPED_TEST_P(ProfileFilesContract, ReadsFilesWithBareLineFeedsAndNoLastLineEnd) {
    this->host_.Put("[info]\ntitle=Blends\n[titles]\n1033=Last");
    EXPECT_EQ(this->Read("info", "title"), "Blends");
    EXPECT_EQ(this->Read("titles", "1033"), "Last");
}

TYPED_TEST_P(ProfileFilesContract, WritesOneValueAndLeavesTheRest) {
    const std::string file = this->host_.File();
    this->host_.Put("; kept\r\n[Info]\r\nTitle=Old\r\nformat=2\r\n[titles]\r\n1033=Old\r\n");
    this->profiles_.WriteString(file, "info", "title", "caf\xC3\xA9");
    EXPECT_EQ(this->host_.Bytes().find("; kept\r\n[Info]\r\n"), 0U) << this->host_.Bytes();
    EXPECT_NE(this->host_.Bytes().find("=caf\xE9\r\nformat=2\r\n[titles]\r\n1033=Old\r\n"),
              std::string::npos)
        << this->host_.Bytes();

    this->profiles_.WriteString(file, "info", "refcount", "1");
    this->profiles_.WriteString(file, "extra", "a", "b");
    EXPECT_EQ(this->Read("info", "title"), "caf\xC3\xA9");
    EXPECT_EQ(this->Read("info", "refcount"), "1");
    EXPECT_EQ(this->Read("titles", "1033"), "Old");
    EXPECT_EQ(this->Read("extra", "a"), "b");
}

TYPED_TEST_P(ProfileFilesContract, CreatesTheFileForItsFirstValue) {
    this->profiles_.WriteString(this->host_.File(), "info", "title", "Blends");
    this->profiles_.Flush(this->host_.File());
    EXPECT_EQ(this->host_.Bytes(), "[info]\r\ntitle=Blends\r\n");
}

TYPED_TEST_P(ProfileFilesContract, ReplacesAllEntriesOfASection) {
    const std::string file = this->host_.File();
    this->host_.Put("[info]\r\ntitle=T\r\n[Titles]\r\n1031=Alt\r\n1033=Old\r\n[last]\r\na=b\r\n");
    this->profiles_.WriteSection(file, "titles", {{"1033", "New"}, {"2057", "Newer"}});

    EXPECT_EQ(this->Read("titles", "1031"), "(none)");
    EXPECT_EQ(this->Read("titles", "1033"), "New");
    EXPECT_EQ(this->Read("titles", "2057"), "Newer");
    EXPECT_EQ(this->Read("info", "title"), "T");
    EXPECT_EQ(this->Read("last", "a"), "b");

    this->profiles_.WriteSection(file, "fresh", {{"x", "y"}});
    EXPECT_EQ(this->Read("fresh", "x"), "y");
}

TYPED_TEST_P(ProfileFilesContract, AFileThatCannotBeWrittenIsAnError) {
    const std::string nowhere = this->host_.File() + "\\no folder\\a.inf";
    EXPECT_THROW(this->profiles_.WriteString(nowhere, "info", "a", "b"), RunTimeError);
    EXPECT_THROW(this->profiles_.WriteSection(nowhere, "info", {{"a", "b"}}), RunTimeError);
}

REGISTER_TYPED_TEST_SUITE_P(ProfileFilesContract, ReadsTheFirstValueOfTheFirstSectionOfThatName,
                            ReadsFilesWithBareLineFeedsAndNoLastLineEnd,
                            WritesOneValueAndLeavesTheRest, CreatesTheFileForItsFirstValue,
                            ReplacesAllEntriesOfASection, AFileThatCannotBeWrittenIsAnError);

}  // namespace morpho::test
