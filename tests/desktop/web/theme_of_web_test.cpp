#include "desktop/web/theme_of_web.h"

#include <gtest/gtest.h>

#include <map>

#include "desktop/temporary_folder.h"

namespace morpho {
namespace {

// The theme's name with "*" behind it where the page takes the web's; "-" when it does not say.
std::string Shown(std::string_view page) {
    const auto theme = ThemeOfPage(page);
    return theme ? theme->name + (theme->ofWeb ? "*" : "") : "-";
}

std::string Meta(const std::string& content) {
    return "<meta name=\"Microsoft Theme\" content=\"" + content + "\">";
}

TEST(ThemeOfPage, ReadsTheMetaTag) {
    EXPECT_EQ(Shown("<head><title>x</title>" + Meta("blends 1011, default")), "blends*");
    EXPECT_EQ(Shown(Meta("blends 011")), "blends");
    EXPECT_EQ(Shown(Meta("my theme 1011,DEFAULT ")), "my theme*");
    EXPECT_EQ(Shown(Meta("blends")), "blends");
    EXPECT_EQ(Shown(Meta("none")), "");
    EXPECT_EQ(Shown(Meta("none, default")), "*");
    EXPECT_EQ(Shown(Meta("B\xF6gen 1011")), "Bögen");
    EXPECT_EQ(Shown("<META content='a 1, default' NAME='microsoft theme'/>"), "a*");
    EXPECT_EQ(Shown("<meta name='Microsoft Theme'content=a>"), "a");
    EXPECT_EQ(Shown("<meta name=\"Microsoft Theme\" content=\"a>b 1\">"), "a>b");
}

TEST(ThemeOfPage, IsNotMisledByWhatIsNoMetaTag) {
    for (const std::string& page :
         {"<!-- " + Meta("a 1") + " -->", "<title>" + Meta("a 1") + "</title>",
          "<script>'" + Meta("a 1") + "'</script>", "<body>" + Meta("a 1"),
          "<p title='" + Meta("a 1") + "'>",
          std::string("<meta name='Microsoft Border' content='a'>"),
          std::string("<meta name=\"Microsoft Theme\" content=\"a"), std::string("< meta"),
          std::string("<"), std::string()})
        EXPECT_EQ(Shown(page), "-") << page;
    EXPECT_EQ(Shown("<!--><style></styl</style>" + Meta("a 1")), "a");
}

void ExpectThemeOfWeb(const std::map<std::string, std::string>& pages, const std::string& theme) {
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
                      {"d.htm", "x 1"},
                      {"e.htm", "x 1"},
                      {"f.txt", "x 1, default"},
                      {"sub/g.htm", "x 1, default"}},
                     "y");
}

}  // namespace
}  // namespace morpho
