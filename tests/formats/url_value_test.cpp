#include "formats/url_value.h"

#include <gtest/gtest.h>

#include "platform/run_time_error.h"

namespace morpho::test {
namespace {

TEST(UrlValue, GivesTheNameWithoutQuotesAndBlanks) {
    const auto expectName = [](const std::string& value, const std::string& expected) {
        std::string name = "(untouched)";
        EXPECT_TRUE(IsUrlValue(value)) << value;
        EXPECT_TRUE(FileNameOfUrl(value, name)) << value;
        EXPECT_EQ(name, expected) << value;
    };
    expectName("url(a.gif)", "a.gif");
    expectName("URL(\"a.gif\")", "a.gif");
    expectName("url\v\r(\n \t\"a.gif\" \v )", "a.gif");
    expectName("url( ' a b.gif ' )", "a b.gif");
    expectName("url(\"'a.gif'\")", "a.gif");
    expectName("url(a.gif) no-repeat (x)", "a.gif");
    expectName("url(it's.gif)", "it's.gif");
    expectName("url(\f)", "\f");
    expectName("url()", "");
    expectName("url(' )", "");
    for (const char* value : {"a.gif", "ur", "", " url(a.gif)"})
        EXPECT_FALSE(IsUrlValue(value)) << value;
}

TEST(UrlValue, HasNoNameWhenItIsCutShort) {
    std::string name;
    for (const char* value : {"url(a.gif", "url('"})
        EXPECT_FALSE(FileNameOfUrl(value, name)) << value;
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
