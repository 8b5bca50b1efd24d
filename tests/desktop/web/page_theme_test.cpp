#include "desktop/web/page_theme.h"

#include <gtest/gtest.h>

#include "desktop/text/utf8.h"
#include "desktop/web/theme_addresses.h"
#include "platform/run_time_error.h"

namespace morpho {
namespace {

const std::string kMark = "<meta name=\"Microsoft Theme\" content=\"old 1011, default\">";
const std::string kNewMark = "<meta name=\"Microsoft Theme\" content=\"new 1011, default\">";

void ExpectPage(const std::string& page, const std::string& expected,
                const std::string& theme = "new") {
    EXPECT_EQ(PageWithTheme(page, theme).value_or("unchanged"), expected);
}
// A page with the theme's mark and this body.
void ExpectBody(const std::string& body, const std::string& expected) {
    ExpectPage(kMark + body, kNewMark + expected);
}

TEST(PageTheme, TheMarksNameChangesAndNothingElseInIt) {
    ExpectPage("<META content='OLD 011 ,  Default' NAME='microsoft theme'/>",
               "<META content='new 011 ,  Default' NAME='microsoft theme'/>");
    ExpectPage("<meta name='Microsoft Theme' content=old,default>",
               "<meta name='Microsoft Theme' content=a&#32;b,default>", "a b");
    ExpectPage("<meta name=\"Microsoft Theme\" content=\"B\xF6gen 1, default\">",
               "<meta name=\"Microsoft Theme\" content=\"&#252;&#32;&#38;&#32;&#34; 1, default\">",
               "ü & \"");
    ExpectPage("<meta name='Microsoft Theme' content='old, default'><meta name='x' content='old'>",
               "<meta name='Microsoft Theme' content='new, default'><meta name='x' content='old'>");
}

TEST(PageTheme, PagesThatDoNotTakeTheWebsThemeStay) {
    for (const std::string content :
         {"old 1011", "none", "none, default", "new 1011, default", "NEW 1, default", ", default"})
        ExpectPage(
            "<meta name='Microsoft Theme' content='" + content + "'><img src='_themes/old/a.gif'>",
            "unchanged");
    ExpectPage("<img src='_themes/old/a.gif'>", "unchanged");
    ExpectPage("", "unchanged");
}

TEST(PageTheme, AddressesOfTheOldFolderChangeWhereverTheyStand) {
    ExpectBody("<img src=\"_themes/old/a.gif\">", "<img src=\"_themes/new/a.gif\">");
    ExpectBody("<td background='../../_THEMES/Old/a.gif'>",
               "<td background='../../_THEMES/new/a.gif'>");
    ExpectBody("<img src=_themes/old/a.gif>", "<img src=_themes/new/a.gif>");
    ExpectBody("<p style=\"background: url(../_themes/old/a.gif)\">",
               "<p style=\"background: url(../_themes/new/a.gif)\">");
    ExpectBody("<style>b{c:url('_themes/old/a.gif')}</style>",
               "<style>b{c:url('_themes/new/a.gif')}</style>");
    ExpectBody("<script>f('/_themes/old/a','_themes\\old\\b')</script>",
               "<script>f('/_themes/new/a','_themes\\new\\b')</script>");
    ExpectBody("<!--webbot U-Src=\"_themes/old/a.gif\" --><!-- x=./_themes/%6fl%64/y -->",
               "<!--webbot U-Src=\"_themes/new/a.gif\" --><!-- x=./_themes/new/y -->");
    ExpectBody("<img src='_themes/&#111;ld/a.gif'>", "<img src='_themes/new/a.gif'>");
    ExpectPage(
        "<link href='_themes/a%20b%E9/x.css'><meta name='Microsoft Theme' "
        "content='a b\xE9, default'><img src='_themes/a b\xC3\xA9/x.gif'>",
        "<link href='_themes/%C3%BC%20%28%27/x.css'><meta name='Microsoft Theme' "
        "content='&#252;&#32;(&#39;, default'><img src='_themes/%C3%BC%20%28%27/x.gif'>",
        "ü ('");
}

TEST(PageTheme, WhatIsNotTheOldFolderStays) {
    for (const std::string body :
         {"<p>See _themes/old/a.gif</p>", "<img src='http://a.example/_themes/old/a.gif'>",
          "<img src='//a.example/_themes/old/a.gif'>", "<img src='sub/_themes/old/a.gif'>",
          "<img src='my_themes/old/a.gif'>", "<img src='_themes/old2/a.gif'>",
          "<img src='_themes/older'>", "<img src='_themes'>", "<title>_themes/old/</title>",
          "<img src='_themes/other/old/a.gif'>", "<img src='_themes/old/a.gif"})
        ExpectBody(body, body);
}

TEST(PageTheme, EveryOtherByteStays) {
    const std::string odd("\r\n\n\r\0\xFF\xC3\t<b a = 'x' =>\xEF\xBB\xBF</b", 27);
    ExpectBody(odd, odd);
    ExpectPage("\xEF\xBB\xBF" + kMark + "ü", "\xEF\xBB\xBF" + kNewMark + "ü");
    const std::string little = Utf16FromUtf8("\xEF\xBB\xBF" + kMark + "ü");
    ExpectPage(little, Utf16FromUtf8("\xEF\xBB\xBF" + kNewMark + "ü"));
    EXPECT_THROW(PageWithTheme(little + std::string("\x00\xD8", 2), "new"), RunTimeError);
}

void ExpectSheet(const std::string& css, const std::string& expected) {
    const auto isOwn = [](const std::string& file) { return file == "a.gif"; };
    EXPECT_EQ(WithOwnPictures(css, isOwn), expected);
}

TEST(ThemeSheets, NameTheirOwnPictures) {
    ExpectSheet("x{y:url(../old/a.gif)}z{}", "x{y:url(a.gif)}z{}");
    ExpectSheet("x{y:URL( '../../_Themes/old/a.gif' );z:url(..\\old\\a.gif)}",
                "x{y:URL( 'a.gif' );z:url(a.gif)}");
    for (const std::string css : {"url(a.gif)", "url(../old/b.gif)", "url(images/a.gif)",
                                  "url(http://a/_themes/old/a.gif)", "url(../../a.gif)", "url("})
        ExpectSheet(css, css);
}

}  // namespace
}  // namespace morpho
