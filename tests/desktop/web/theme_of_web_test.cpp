#include "desktop/web/theme_of_web.h"

#include <gtest/gtest.h>

#include "desktop/temporary_folder.h"

namespace morpho {
namespace {

std::string Meta(const std::string& content) {
    return "<meta name=\"Microsoft Theme\" content=\"" + content + "\">";
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

void ExpectThemeOfWeb(const Tree& pages, const std::string& theme) {
    const TemporaryFolder folder;
    for (const auto& [name, content] : pages)
        folder.Write(name, Meta(content));
    EXPECT_EQ(ThemeOfWeb(DiskFolder::Open(folder.Path().string(), true)), theme);
}

TEST(ThemeOfWeb, IsTheHomePagesOrTheMostFrequent) {
    ExpectThemeOfWeb({}, "");
    ExpectThemeOfWeb({{"a.htm", "x 1, default"}, {"Index.HTM", "y 1, default"}}, "y");
    ExpectThemeOfWeb({{"default.htm", "x 1, default"}, {"index.htm", "y 1, default"}}, "y");
    ExpectThemeOfWeb({{"index.htm", "own 1"}, {"a.htm", "x 1, default"}}, "x");
    ExpectThemeOfWeb({{"index.htm", "none, default"}, {"a.htm", "x 1, default"}}, "");
    ExpectThemeOfWeb({{"a.htm", "x 1, default"},
                      {"b.asp", "y 1, default"},
                      {"c.html", "y 1, default"},
                      {"d.htm", "z 1"},
                      {"e.htm", "none, default"},
                      {"f.txt", "x 1, default"},
                      {"sub/g.htm", "x 1, default"}},
                     "y");
}

}  // namespace
}  // namespace morpho
