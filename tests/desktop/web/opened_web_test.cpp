#include "desktop/web/opened_web.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "desktop/temporary_folder.h"
#include "platform/run_time_error.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

class OpenedWebTest : public testing::Test {
  protected:
    void AddTheme(const std::string& name, const std::string& description) {
        folder_.Write("web/_themes/" + name + "/" + name + ".inf", description);
    }
    OpenedWeb Open(const std::optional<std::string>& only = {}) {
        return OpenWebFolder(folder_ / "web", {folder_ / "cache/mstheme", only});
    }
    void ExpectThemes(const OpenedWeb& web, const std::string& namesAndLabels) {
        std::string shown;
        for (const Theme& theme : web.themes)
            shown += theme.name + "=" + theme.label + ";";
        EXPECT_EQ(shown, namesAndLabels);
    }
    Tree Unpacked() { return folder_.Below("cache/mstheme"); }

    TemporaryFolder folder_;
};

TEST_F(OpenedWebTest, ListsThemesByNameWithTheirTitles) {
    AddTheme("zero", "[info]\r\ntitle=Zero\r\n");
    AddTheme("Blends", "[INFO]\nTITLE=\"Blaue \xC3\x9C\"\ncodepage=65001\n");
    AddTheme("arcs", "[info]\ntitle=B\xF6gen\ncodepage=1252\n");
    AddTheme("bare", "[titles]\n1033=x\n");
    folder_.Write("web/_themes/Loud/LOUD.INF", "[info]\ntitle=Loud!\n");
    folder_.Write("web/_themes/nothing/other.inf", "[info]\ntitle=x\n");
    folder_.Write("web/_themes/themes.inf", "[info]\ntitle=x\n");
    ExpectThemes(Open(), "arcs=Bögen;bare=bare;Blends=Blaue Ü;Loud=Loud!;zero=Zero;");
}

TEST_F(OpenedWebTest, UnpacksTheRegularFilesOfEachTheme) {
    AddTheme("a", "[info]");
    fs::permissions(folder_.Write("web/_themes/a/Pic.GIF", std::string("\0\xff\r\n", 4)),
                    fs::perms(0444));
    folder_.Write("web/_themes/a/_vti_cnf/Pic.GIF", "text");
    folder_.Write("secret", "secret");
    fs::create_symlink(folder_ / "secret", folder_ / "web/_themes/a/link.gif");
    ::mkfifo((folder_ / "web/_themes/a/pipe.gif").c_str(), 0600);
    folder_.Write("cache/mstheme/old/left", "from the web before");
    EXPECT_TRUE(Open().skipped.empty());
    EXPECT_EQ(
        Unpacked(),
        (Tree{{"a/", ""}, {"a/a.inf", "[info]"}, {"a/Pic.GIF", std::string("\0\xff\r\n", 4)}}));
    folder_.Write("cache/mstheme/a/Pic.GIF", "writable");
}

TEST_F(OpenedWebTest, TakesOneOfTwoNamesThatDifferOnlyInCase) {
    AddTheme("a", "[info]\ntitle=lower\n");
    AddTheme("A", "[info]\ntitle=upper\n");
    folder_.Write("web/_themes/A/x.gif", "1");
    folder_.Write("web/_themes/A/X.gif", "2");
    const OpenedWeb web = Open();
    ExpectThemes(web, "A=upper;");
    EXPECT_EQ(Unpacked(),
              (Tree{{"A/", ""}, {"A/A.inf", "[info]\ntitle=upper\n"}, {"A/X.gif", "2"}}));
    EXPECT_EQ(web.skipped.size(), 2U);
}

TEST_F(OpenedWebTest, LinksGetNothing) {
    AddTheme("a", "[info]");
    folder_.Write("outside/b/b.inf", "[info]");
    folder_.Write("outside/c.inf", "[info]\ntitle=Secret\n");
    fs::create_directory_symlink(folder_ / "outside/b", folder_ / "web/_themes/b");
    fs::create_directory(folder_ / "web/_themes/c");
    fs::create_symlink(folder_ / "outside/c.inf", folder_ / "web/_themes/c/c.inf");
    ExpectThemes(Open(), "a=a;");

    fs::rename(folder_ / "web/_themes", folder_ / "themes");
    fs::create_directory_symlink(folder_ / "themes", folder_ / "web/_themes");
    ExpectThemes(Open(), "");
}

TEST_F(OpenedWebTest, SkipsWhatCannotBeReadAndSaysSo) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can lend its files to another user";
    AddTheme("closed", "[info]\ntitle=Closed\n");
    AddTheme("open", "[info]\ntitle=Open\n");
    fs::permissions(folder_.Write("web/_themes/open/x.gif", "x"), fs::perms::none);
    fs::permissions(folder_ / "web/_themes/closed", fs::perms::none);
    const std::string huge = folder_.Write("web/_themes/open/huge.gif", "");
    fs::resize_file(huge, std::uintmax_t{1} << 40);
    fs::permissions(folder_.Path(), fs::perms(0777));
    ASSERT_EQ(::seteuid(65534), 0);
    const OpenedWeb web = Open();
    ASSERT_EQ(::seteuid(0), 0);
    ExpectThemes(web, "closed=closed;open=Open;");
    EXPECT_EQ(Unpacked(), (Tree{{"open/", ""}, {"open/open.inf", "[info]\ntitle=Open\n"}}));
    ASSERT_EQ(web.skipped.size(), 3U);
    EXPECT_NE(web.skipped[2].find("x.gif"), std::string::npos) << web.skipped[2];
}

TEST_F(OpenedWebTest, UnpacksOneThemeAloneWhenAsked) {
    AddTheme("a", "[info]");
    AddTheme("b", "[info]");
    ExpectThemes(Open("B"), "a=a;b=b;");
    EXPECT_EQ(Unpacked(), (Tree{{"b/", ""}, {"b/b.inf", "[info]"}}));
}

TEST_F(OpenedWebTest, AWebMustBeAFolderButNeedsNoThemes) {
    folder_.Write("web/index.htm", "");
    ExpectThemes(Open(), "");
    for (const std::string name : {"none", "web/index.htm"})
        EXPECT_THROW(OpenWebFolder(folder_ / name, {folder_ / "cache/mstheme"}), RunTimeError);
    EXPECT_TRUE(folder_.Has("cache/mstheme"));
}

}  // namespace
}  // namespace morpho
