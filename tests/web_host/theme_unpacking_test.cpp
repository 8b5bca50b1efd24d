#include "web_host/theme_unpacking.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "linux/disk_path.h"
#include "linux/linux_disk.h"
#include "platform/run_time_error.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

class ThemeUnpackingTest : public testing::Test {
  protected:
    void AddTheme(const std::string& name, const std::string& description = "[info]") {
        folder_.Write("web/_themes/" + name + "/" + name + ".inf", description);
    }
    // The themes' labels, and the number of what was left out.
    void ExpectThemes(const std::string& labels, std::size_t skipped = 0,
                      const std::optional<std::string>& only = {}) {
        const ListedThemes web = Unpack("web", {ToWindowsPath(folder_ / "cache"), only});
        std::string shown;
        for (const Theme& theme : web.themes)
            shown += theme.name + "=" + theme.label + ";";
        EXPECT_EQ(shown, labels);
        EXPECT_EQ(web.skipped.size(), skipped) << testing::PrintToString(web.skipped);
    }
    ListedThemes Unpack(const std::string& web, const UnpackOptions& options) {
        return UnpackThemes(disk_, WebFiles(disk_, ToWindowsPath(folder_ / web)), options);
    }
    void ExpectUnpacked(const Tree& files) { EXPECT_EQ(folder_.Below("cache"), files); }

    LinuxDisk disk_;
    TemporaryFolder folder_;
};

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
    fs::permissions(folder_.Write("web/_themes/a/Pic.GIF", bytes), fs::perms(0444));
    folder_.Write("web/_themes/a/_vti_cnf/Pic.GIF", "text");
    folder_.Write("secret", "secret");
    fs::create_symlink(folder_ / "secret", folder_ / "web/_themes/a/link.gif");
    ::mkfifo((folder_ / "web/_themes/a/pipe.gif").c_str(), 0600);
    folder_.Write("cache/old/left", "from the web before");
    ExpectThemes("a=a;");
    ExpectUnpacked({{"a/", ""}, {"a/a.inf", "[info]"}, {"a/Pic.GIF", bytes}});
}

TEST_F(ThemeUnpackingTest, TakesOneOfTwoNamesThatDifferOnlyInCase) {
    AddTheme("a", "[info]\ntitle=lower\n");
    AddTheme("A", "[info]\ntitle=upper\n");
    folder_.Write("web/_themes/A/x.gif", "1");
    folder_.Write("web/_themes/A/X.gif", "2");
    AddTheme("šum");
    AddTheme("ŠUM");
    ExpectThemes("A=upper;ŠUM=ŠUM;", 3);
    fs::remove_all(folder_ / "cache/ŠUM");
    ExpectUnpacked({{"A/", ""}, {"A/A.inf", "[info]\ntitle=upper\n"}, {"A/X.gif", "2"}});
}

TEST_F(ThemeUnpackingTest, LinksGetNothing) {
    AddTheme("a");
    folder_.Write("outside/b/b.inf", "[info]");
    folder_.Write("outside/c.inf", "[info]\ntitle=Secret\n");
    fs::create_directory_symlink(folder_ / "outside/b", folder_ / "web/_themes/b");
    fs::create_directory(folder_ / "web/_themes/c");
    fs::create_symlink(folder_ / "outside/c.inf", folder_ / "web/_themes/c/c.inf");
    ExpectThemes("a=a;");

    fs::rename(folder_ / "web/_themes", folder_ / "themes");
    fs::create_directory_symlink(folder_ / "themes", folder_ / "web/_themes");
    ExpectThemes("");
}

TEST_F(ThemeUnpackingTest, SkipsWhatCannotBeReadAndSaysSo) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can lend its files to another user";
    AddTheme("closed");
    AddTheme("open");
    fs::permissions(folder_.Write("web/_themes/open/x.gif", "x"), fs::perms::none);
    fs::permissions(folder_ / "web/_themes/closed", fs::perms::none);
    fs::resize_file(folder_.Write("web/_themes/open/huge.gif", ""), std::uintmax_t{1} << 40);
    fs::permissions(folder_.Path(), fs::perms(0777));
    ASSERT_EQ(::seteuid(65534), 0);
    ExpectThemes("closed=closed;open=open;", 3);
    ASSERT_EQ(::seteuid(0), 0);
    ExpectUnpacked({{"open/", ""}, {"open/open.inf", "[info]"}});
}

TEST_F(ThemeUnpackingTest, OnlyTheThemeAskedForIsUnpackedAndToldOfButAllAreInstalled) {
    AddTheme("a");
    AddTheme("b");
    folder_.Write("web/_themes/a/x.gif", "1");
    folder_.Write("web/_themes/a/X.gif", "2");
    folder_.Write("web/_themes/a theme no more/x.gif", "its name is not free");
    const ListedThemes web = Unpack("web", {ToWindowsPath(folder_ / "cache"), "B",
                                            ToWindowsPath(folder_ / "installed"), false});
    EXPECT_TRUE(web.skipped.empty());
    ExpectUnpacked({{"b/", ""}, {"b/b.inf", "[info]"}});
    for (const char* const name : {"a/a.elm", "b/b.elm", "a theme no more"})
        EXPECT_TRUE(folder_.Has(std::string("installed/") + name)) << name;
}

TEST_F(ThemeUnpackingTest, AWebMustBeAFolderButNeedsNoThemes) {
    folder_.Write("web/index.htm", "");
    ExpectThemes("");
    for (const std::string name : {"none", "web/index.htm"})
        EXPECT_THROW(Unpack(name, {ToWindowsPath(folder_ / "cache")}), RunTimeError);
    EXPECT_TRUE(folder_.Has("cache"));
}

}  // namespace
}  // namespace morpho
