#include "theme_editor/url_value.h"

#include <gtest/gtest.h>

#include "platform/run_time_error.h"

namespace morpho::test {
namespace {

TEST(UrlValue, KnowsFiveKindsOfWhitespace) {
    EXPECT_EQ(IgnoreWhiteSpaces(" \t\r\n\va", 1), 6U);
    EXPECT_EQ(IgnoreWhiteSpaces("a b", 1), 1U);
    EXPECT_EQ(IgnoreWhiteSpaces("a  ", 2), 0U);
    EXPECT_EQ(IgnoreWhiteSpaces("a", 2), 0U);
    EXPECT_EQ(TrimWhiteSpaces(" \t\r\n\va b\v\n\r\t "), "a b");
    EXPECT_EQ(TrimWhiteSpaces("\f \t"), "\f");
    EXPECT_EQ(TrimWhiteSpaces(" \t"), "");
}

TEST(UrlValue, IsRecognisedByItsFirstThreeLetters) {
    for (const char* value : {"url(a.gif)", "URL(a.gif)", "Url", "urls.gif"})
        EXPECT_TRUE(IsUrlValue(value)) << value;
    for (const char* value : {"a.gif", "ur", "", " url(a.gif)"})
        EXPECT_FALSE(IsUrlValue(value)) << value;
}

void ExpectName(const std::string& value, const std::string& expected) {
    std::string name = "(untouched)";
    EXPECT_TRUE(FileNameOfUrl(value, name)) << value;
    EXPECT_EQ(name, expected) << value;
}

TEST(UrlValue, GivesTheNameWithoutQuotesAndBlanks) {
    ExpectName("url(a.gif)", "a.gif");
    ExpectName("URL(\"a.gif\")", "a.gif");
    ExpectName("url ( \t\"a.gif\"  )", "a.gif");
    ExpectName("url( ' a b.gif ' )", "a b.gif");
    ExpectName("url(\"'a.gif'\")", "a.gif");
    ExpectName("url(a.gif) no-repeat (x)", "a.gif");
    ExpectName("url(it's.gif)", "it's.gif");
    ExpectName("url()", "");
    ExpectName("url(' )", "");
}

TEST(UrlValue, HasNoNameWhenItIsCutShort) {
    std::string name;
    EXPECT_FALSE(FileNameOfUrl("url(a.gif", name));
    EXPECT_FALSE(FileNameOfUrl("url('", name));
    for (const char* value : {"url", "url \t", "url(", "url(  "})
        EXPECT_THROW(FileNameOfUrl(value, name), RunTimeError) << value;
}

TEST(UrlValue, MustNotLeadOutOfTheFolder) {
    for (const char* name : {"a.gif", "sub\\a.gif", "sub/a.gif", "a..gif", "..a.gif", ""})
        EXPECT_TRUE(StaysInsideFolder(name)) << name;
    for (const char* name : {"..\\a.gif", "../a.gif", "sub\\..\\..\\a.gif", "sub/..", "\\a.gif",
                             "/etc/a.gif", "C:\\a.gif", "C:a.gif", "\\\\server\\share\\a.gif"})
        EXPECT_FALSE(StaysInsideFolder(name)) << name;
}

}  // namespace
}  // namespace morpho::test
