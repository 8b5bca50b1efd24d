#include "web_host/theme_of_web.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "support/this_computer.h"

namespace morpho {
namespace {

std::string Meta(const std::string& content) {
    return "<meta name=\"Microsoft Theme\" content=\"" + content + "\">";
}

void ExpectThemeOfWeb(const Tree& pages, const std::string& theme) {
    const TemporaryFolder folder;
    for (const auto& [name, content] : pages)
        folder.Write(name, Meta(content));
    EXPECT_EQ(ThemeOfWeb(*test::RealDisk().Open(test::WindowsPath(folder / ""))), theme);
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
