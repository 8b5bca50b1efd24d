#include "platform/run_time_error.h"
#include "web_host/theme_unpacking_fixture.h"

namespace morpho {
namespace {

TEST_F(ThemeUnpackingTest, ListsThemesByNameWithTheirTitles) {
    AddTheme("zero", "[info]\r\ntitle=Zero\r\n");
    AddTheme("Blends", "[INFO]\nTITLE=\"Blaue \xC3\x9C\"\ncodepage=65001\n");
    AddTheme("arcs", "[info]\ntitle=B\xF6gen\ncodepage=1252\n");
    AddTheme("bare", "[titles]\n1033=x\n");
    folder_.Write("web/_themes/Loud/LOUD.INF", "[info]\ntitle=Loud!\n");
    folder_.Write("web/_themes/nothing/other.inf", "[info]\ntitle=x\n");
    folder_.Write("web/_themes/themes.inf", "[info]\ntitle=x\n");
    ExpectThemes("arcs=Bögen;bare=bare;Blends=Blaue Ü;Loud=Loud!;zero=Zero;");
    ExpectThemes("arcs=Bögen;bare=bare;Blends=Blaue Ü;Loud=Loud!;zero=Zero;", 0, "BARE");
    ExpectUnpacked({{"bare/", ""}, {"bare/bare.inf", "[titles]\n1033=x\n"}});
}

TEST_F(ThemeUnpackingTest, UnpacksTheRegularFilesOfEachTheme) {
    const std::string bytes("\0\xff\r\n", 4);
    AddTheme("a");
    std::filesystem::permissions(folder_.Write("web/_themes/a/Pic.GIF", bytes),
                                 std::filesystem::perms(0444));
    folder_.Write("web/_themes/a/_vti_cnf/Pic.GIF", "text");
    folder_.Write("cache/old/left", "from the web before");
    ExpectThemes("a=a;");
    ExpectUnpacked({{"a/", ""}, {"a/a.inf", "[info]"}, {"a/Pic.GIF", bytes}});
}

TEST_F(ThemeUnpackingTest, OnlyTheThemeAskedForIsUnpackedAndToldOfButAllAreInstalled) {
    AddTheme("a");
    AddTheme("b");
    folder_.Write("web/_themes/a/x.gif", "1");
    folder_.Write("web/_themes/a/X.gif", "2");
    folder_.Write("web/_themes/a theme no more/x.gif", "its name is not free");
    const ListedThemes web = Unpack("web", {test::WindowsPath(folder_ / "cache"), "B",
                                            test::WindowsPath(folder_ / "installed"), false});
    EXPECT_TRUE(web.skipped.empty());
    ExpectUnpacked({{"b/", ""}, {"b/b.inf", "[info]"}});
    for (const char* const name : {"a/a.elm", "b/b.elm", "a theme no more"})
        EXPECT_TRUE(folder_.Has(std::string("installed/") + name)) << name;
}

TEST_F(ThemeUnpackingTest, AWebMustBeAFolderButNeedsNoThemes) {
    folder_.Write("web/index.htm", "");
    ExpectThemes("");
    for (const std::string name : {"none", "web/index.htm"})
        EXPECT_THROW(Unpack(name, {test::WindowsPath(folder_ / "cache")}), RunTimeError);
    EXPECT_TRUE(folder_.Has("cache"));
}

}  // namespace
}  // namespace morpho
