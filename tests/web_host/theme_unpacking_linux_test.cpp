#include <sys/stat.h>
#include <unistd.h>

#include "web_host/theme_unpacking_fixture.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

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

TEST_F(ThemeUnpackingTest, LinksAndPipesGetNothing) {
    AddTheme("a");
    folder_.Write("outside/b/b.inf", "[info]");
    folder_.Write("outside/c.inf", "[info]\ntitle=Secret\n");
    fs::create_directory_symlink(folder_ / "outside/b", folder_ / "web/_themes/b");
    fs::create_directory(folder_ / "web/_themes/c");
    fs::create_symlink(folder_ / "outside/c.inf", folder_ / "web/_themes/c/c.inf");
    fs::create_symlink(folder_ / "outside/c.inf", folder_ / "web/_themes/a/link.gif");
    ::mkfifo((folder_ / "web/_themes/a/pipe.gif").c_str(), 0600);
    ExpectThemes("a=a;");
    ExpectUnpacked({{"a/", ""}, {"a/a.inf", "[info]"}});

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

}  // namespace
}  // namespace morpho
