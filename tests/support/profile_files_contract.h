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
    void ExpectValue(const std::string& section, const std::string& key, const std::string& value,
                     std::size_t maxChars = 255) {
        EXPECT_EQ(profiles_.ReadString(host_.File(), section, key, "(none)", maxChars), value)
            << section << ' ' << key;
    }

    Host host_;
    ProfileFiles& profiles_ = host_.Subject();
};

TYPED_TEST_SUITE_P(ProfileFilesContract);

TYPED_TEST_P(ProfileFilesContract, ReadsTheFirstValueOfTheFirstSectionOfThatName) {
    this->ExpectValue("info", "title", "(none)");
    this->host_.Put(
        "; a comment\r\n[Info]\r\nTitle = \"Blue  Blends\" \r\nreadonly=true\r\nreadonly=0\r\n"
        "empty=\r\nsingle='x'\r\nhalf=\"x\r\naccent=caf\xE9\r\n\r\n"
        "[titles]\r\n1033=Blends\r\n[info]\r\nlate=1");
    this->ExpectValue("info", "title", "Blue  Blends");
    this->ExpectValue("INFO", "ReadOnly", "true");
    this->ExpectValue("info", "empty", "");
    this->ExpectValue("info", "single", "x");
    this->ExpectValue("info", "half", "\"x");
    this->ExpectValue("info", "accent", "caf\xC3\xA9", 4);
    this->ExpectValue("info", "title", "Blue", 4);
    this->ExpectValue("titles", "1033", "Blends");
    for (const char* key : {"1033", "late"})
        this->ExpectValue("info", key, "(none)");
    this->ExpectValue("extra", "title", "(none)");
}

TYPED_TEST_P(ProfileFilesContract, WritesValuesAndSectionsAndLeavesTheRest) {
    const std::string file = this->host_.File();
    this->profiles_.WriteString(file, "info", "title", "Blends");
    this->profiles_.Flush(file);
    EXPECT_EQ(this->host_.Bytes(), "[info]\r\ntitle=Blends\r\n");

    this->host_.Put("; kept\r\n[Info]\r\nTitle=Old\r\n[Titles]\r\n1031=Alt\r\n1033=Old\r\n");
    this->profiles_.WriteString(file, "info", "title", "caf\xC3\xA9");
    this->profiles_.WriteString(file, "info", "refcount", "1");
    this->profiles_.WriteSection(file, "titles", {{"1033", "New"}});
    this->profiles_.WriteSection(file, "fresh", {{"x", "y"}});
    EXPECT_TRUE(this->host_.Bytes().starts_with("; kept\r\n[Info]\r\n")) << this->host_.Bytes();
    EXPECT_NE(this->host_.Bytes().find("=caf\xE9\r\n"), std::string::npos) << this->host_.Bytes();
    this->ExpectValue("info", "title", "caf\xC3\xA9");
    this->ExpectValue("info", "refcount", "1");
    this->ExpectValue("titles", "1031", "(none)");
    this->ExpectValue("titles", "1033", "New");
    this->ExpectValue("fresh", "x", "y");
}

TYPED_TEST_P(ProfileFilesContract, AFileThatCannotBeWrittenIsAnError) {
    const std::string nowhere = this->host_.File() + "\\no folder\\a.inf";
    EXPECT_THROW(this->profiles_.WriteString(nowhere, "info", "a", "b"), RunTimeError);
    EXPECT_THROW(this->profiles_.WriteSection(nowhere, "info", {{"a", "b"}}), RunTimeError);
}

REGISTER_TYPED_TEST_SUITE_P(ProfileFilesContract, ReadsTheFirstValueOfTheFirstSectionOfThatName,
                            WritesValuesAndSectionsAndLeavesTheRest,
                            AFileThatCannotBeWrittenIsAnError);

}  // namespace morpho::test
