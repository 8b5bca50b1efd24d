#include "formats/page_theme.h"

#include <gtest/gtest.h>

#include <chrono>

#include "formats/own_theme.h"
#include "formats/theme_addresses.h"
#include "formats/theme_mark.h"
#include "platform/run_time_error.h"
#include "text/utf8.h"

namespace morpho {
namespace {

std::string Meta(const std::string& content) {
    return "<meta name=\"Microsoft Theme\" content=\"" + content + "\">";
}

const std::string kMark = Meta("old 1011, default");
const std::string kNewMark = Meta("new 1011, default");

// The new theme has all files but "lacking.gif", and another sheet in place of "old.css".
std::optional<std::string> NewFile(const ThemeAddress& address) {
    if (address.file == "lacking.gif") return {};
    return address.file == "old.css" ? "a b.css" : address.file;
}
std::optional<std::string> Rethemed(const std::string& page, const std::string& theme = "new") {
    return PageWithTheme(page, theme, PageChoice(), NewFile);
}
void ExpectPage(const std::string& page, const std::string& expected,
                const std::string& theme = "new") {
    EXPECT_EQ(Rethemed(page, theme).value_or("unchanged"), expected);
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
    ExpectPage(kMark + "<meta name='x' content='old'>", kNewMark + "<meta name='x' content='old'>");
}

TEST(PageTheme, PagesThatDoNotTakeTheWebsThemeStay) {
    for (const std::string content :
         {"old 1011", "none", "none, default", "NEW 1, default", ", default"})
        ExpectPage(
            "<meta name='Microsoft Theme' content='" + content + "'><img src='_themes/old/a.gif'>",
            "unchanged");
    ExpectPage("<img src='_themes/old/a.gif'>", "unchanged");
}

TEST(PageTheme, PagesThatNameTheThemeThemselvesChangeWhereTheyAreChosen) {
    const auto rethemed = [&](const std::string& content, const PageChoice& choice) {
        const std::string page = Meta(content) + "<img src='_themes/old/a.gif'>";
        return PageWithTheme(page, "new", choice, NewFile).value_or("unchanged");
    };
    const std::string rest = "<img src='_themes/new/a.gif'>";
    EXPECT_EQ(rethemed("Old 011", {true, "old"}), Meta("new 011") + rest);
    EXPECT_EQ(rethemed("old 011, default", {true, "old"}), Meta("new 011, default") + rest);
    EXPECT_EQ(rethemed("old 011, default", {false, "old"}), "unchanged");
    EXPECT_EQ(rethemed("other 011", {true, "old"}), "unchanged");
    EXPECT_EQ(rethemed("none", {true, "none"}), "unchanged");
}

TEST(PageTheme, ASinglePageGetsAThemeOfItsOwn) {
    const OwnTheme theme{"new", "../", {"new11011.css"}};
    const auto expectOwn = [&](const std::string& page, const std::string& expected) {
        EXPECT_EQ(PageWithOwnTheme(page, theme, NewFile).value_or("unchanged"), expected) << page;
    };
    const std::string link =
        "<!--mstheme--><link rel=\"stylesheet\" type=\"text/css\" "
        "href=\"../_themes/new/new11011.css\">";
    const std::string old = "<img src='_themes/old/a.gif'>",
                      moved = "<img src='_themes/new/a.gif'>";
    expectOwn(Meta("old 011, default") + old, Meta("new 011") + moved);
    expectOwn(Meta("old 011") + old, Meta("new 011") + moved);
    expectOwn(Meta("new 011, default") + old, Meta("new 011") + old);
    expectOwn(Meta("new 011"), "unchanged");
    expectOwn(Meta("none, default") + "<p>", Meta("new 1011") + link + "<p>");
    expectOwn("<head><p></head>", "<head><p>" + Meta("new 1011") + link + "</head>");
    expectOwn("<head><title>x</title>", "<head>" + Meta("new 1011") + link + "<title>x</title>");
    expectOwn("<body>", Meta("new 1011") + link + "<body>");
    // Tags that have no room for the name.
    for (const char* const tag :
         {"<meta name='Microsoft Theme' content=none>", "<meta name='Microsoft Theme'>",
          "<meta name='Microsoft Theme' content>"})
        expectOwn(std::string("<head>") + tag, "<head>" + Meta("new 1011") + link);
    EXPECT_THROW(PageWithOwnTheme("words", theme, {}), RunTimeError);
}

TEST(PageTheme, AddressesOfTheOldFolderChangeWhereverTheyStand) {
    // What stands around the theme's name in an address.
    const auto expectRenamed = [](const std::string& before, const std::string& behind) {
        ExpectBody(before + "old" + behind, before + "new" + behind);
        ExpectBody(before + "OLD" + behind, before + "new" + behind);
        ExpectBody(before + "%6fl%64" + behind, before + "new" + behind);
    };
    expectRenamed("<img src=\"_themes/", "/a.gif\">");
    expectRenamed("<td background='../../_THEMES/", "/a.gif'>");
    expectRenamed("<img src=./_themes/", "/a.gif>");
    expectRenamed("<p style=\"background: url(../_themes/", "/a.gif)\">");
    expectRenamed("<style>b{c:url('_themes/", "/a.gif')}</style>");
    expectRenamed("<script>f('/_themes\\", "\\a')</script>");
    expectRenamed("<noframes><body background=_themes/", "/a.gif></noframes>");
    expectRenamed("<!--webbot U-Src=\"_themes/", "/a.gif\" --><!-- x -->");
    ExpectBody("<img src=_themes/old/a.gif><img src=_themes/old/lacking.gif>",
               "<img src=_themes/new/a.gif><img src=_themes/old/lacking.gif>");
    ExpectBody("<link href='_themes/old/o%6cd.css?x'>", "<link href='_themes/new/a%20b.css?x'>");
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
    const std::string marked = "\xEF\xBB\xBF" + kMark + "ü";
    const std::string newMarked = "\xEF\xBB\xBF" + kNewMark + "ü";
    ExpectPage(marked, newMarked);
    ExpectPage(Utf16FromUtf8(marked), Utf16FromUtf8(newMarked));
    const auto bigEndian = [](std::string bytes) {
        for (std::size_t at = 0; at < bytes.size(); at += 2)
            std::swap(bytes[at], bytes[at + 1]);
        return bytes;
    };
    ExpectPage(bigEndian(Utf16FromUtf8(marked)), bigEndian(Utf16FromUtf8(newMarked)));
    EXPECT_THROW(Rethemed(Utf16FromUtf8(marked) + std::string("\x00\xD8", 2)), RunTimeError);
}

TEST(ThemeSheets, NameTheirOwnPictures) {
    const auto expectSheet = [](const std::string& css, const std::string& expected) {
        const auto isOwn = [](const std::string& file) { return file == "a.gif"; };
        EXPECT_EQ(WithOwnPictures(css, isOwn), expected);
    };
    expectSheet("x{y:url(../old/a.gif)}z{}", "x{y:url(a.gif)}z{}");
    expectSheet("x{y:URL( '../../_Themes/old/a.gif' );z:url(..\\old\\a.gif)}",
                "x{y:URL( 'a.gif' );z:url(a.gif)}");
    for (const std::string css : {"url(a.gif)", "url(../old/b.gif)", "url(images/a.gif)",
                                  "url(http://a/_themes/old/a.gif)", "url(../../a.gif)", "url("})
        expectSheet(css, css);
}

// The theme's name, with "*" behind it where the page takes the web's; "-" when it does not say.
void ExpectTheme(const std::string& page, const std::string& expected) {
    const auto theme = ThemeOfPage(page);
    EXPECT_EQ(theme ? theme->name + (theme->ofWeb ? "*" : "") : "-", expected) << page;
}

TEST(ThemeOfPage, ReadsTheMetaTag) {
    ExpectTheme("<head><title>x</title>" + Meta("my theme 1011,DEFAULT "), "my theme*");
    ExpectTheme(Meta("blends"), "blends");
    ExpectTheme(Meta("none, default"), "*");
    ExpectTheme(Meta("B\xF6gen 011"), "Bögen");
    ExpectTheme("<META content='a 1, default' NAME='microsoft theme'/>", "a*");
    ExpectTheme("<meta name='Microsoft Theme'content=a>", "a");
    ExpectTheme(Meta("a>b 1"), "a>b");
}

TEST(ThemeOfPage, IsNotMisledByWhatIsNoMetaTag) {
    ExpectTheme("<!-- " + Meta("a 1") + " -->", "-");
    ExpectTheme("<title>" + Meta("a 1") + "</title>", "-");
    ExpectTheme("<body>" + Meta("a 1"), "-");
    ExpectTheme("<p title='" + Meta("a 1") + "'>", "-");
    ExpectTheme("<meta name='Microsoft Border' content='a'>", "-");
    ExpectTheme("<meta name=\"Microsoft Theme\" content=\"a", "-");
    ExpectTheme("< meta", "-");
    ExpectTheme("<!--><style></styl</style>" + Meta("a 1"), "a");
}

// What a hostile web may hold. Time that grew with the square of the length would take minutes.
TEST(PageTheme, EndlessAddressesCostNoMoreThanTheirLength) {
    constexpr std::size_t kLength = 1'000'000;
    const auto repeated = [](const std::string& part) {
        std::string text;
        while (text.size() < kLength)
            text += part;
        return text;
    };
    const auto start = std::chrono::steady_clock::now();
    for (const char* const part : {"url(", "url( ", "url(\"../old/", "url(../_themes/old/x.gif"}) {
        const std::string sheet = repeated(part);
        EXPECT_EQ(WithOwnPictures(sheet, [](const auto&) { return true; }).size(), sheet.size())
            << part;
    }
    for (const char* const part :
         {"_themes/", "=_themes/old/", "'_themes/old/", "<!-- _themes/old/", "<a b='", "../",
          "<style></", "_themes/old/a=", "&"}) {
        const std::string page = repeated(part);
        const auto rethemed = Rethemed(kMark + page);
        EXPECT_LE(rethemed.value_or("").size(), page.size() + kMark.size()) << part;
    }
    std::string dense;  // names of 1000 bytes, in which the next addresses stand
    while (dense.size() < 1000)
        dense += ",_themes/o/";
    std::size_t read = 0;
    for (const ThemeAddress& address : ThemeAddresses("<style>" + repeated(dense + "?")))
        read += address.file.size();
    EXPECT_LE(read, kLength) << "no part of a page is in two names";
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
}  // namespace morpho
