#include "desktop/system/private_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desktop/temporary_folder.h"
#include "platform/run_time_error.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

TEST(PrivateFolder, IsTheUsersAloneAndGoesWithTheProgram) {
    const TemporaryFolder home;
    const std::string root = home / "cache/morpho";
    std::string path;
    {
        const PrivateFolder folder(root);
        path = folder.Path();
        EXPECT_EQ(fs::status(root).permissions(), fs::perms(0700));
        EXPECT_EQ(fs::status(path).permissions(), fs::perms(0700));
        EXPECT_TRUE(fs::is_directory(folder.Temporary()));
        EXPECT_TRUE(fs::is_directory(folder.Cache()));
    }
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::is_empty(root));
}

TEST(PrivateFolder, IsNeverSharedAndOutlivesOtherPrograms) {
    const TemporaryFolder home;
    const PrivateFolder first(home / "morpho");
    const PrivateFolder second(home / "morpho");
    EXPECT_NE(first.Path(), second.Path());
    EXPECT_TRUE(fs::exists(first.Temporary()));
}

TEST(PrivateFolder, TheNextStartRemovesWhatADeadProgramLeft) {
    const TemporaryFolder home;
    const std::string root = home / "morpho";
    if (::fork() == 0) {
        const auto* abandoned = new PrivateFolder(root);
        home.Write("morpho/" + fs::path(abandoned->Path()).filename().string() + "/temp/x", "x");
        ::_exit(0);
    }
    ::wait(nullptr);
    home.Write("outside/kept", "x");
    fs::create_directory_symlink(home / "outside", root + "/run-link");
    home.Write("morpho/of-another-kind", "x");
    EXPECT_FALSE(fs::is_empty(root));

    const PrivateFolder folder(root);
    std::size_t runs = 0;
    for (const auto& entry : fs::directory_iterator(root))
        runs += entry.path().filename().string().starts_with("run-") && !entry.is_symlink();
    EXPECT_EQ(runs, 1U);
    EXPECT_TRUE(home.Has("outside/kept"));
    EXPECT_TRUE(home.Has("morpho/of-another-kind"));
}

TEST(PrivateFolder, RefusesAPlaceThatIsNotTheUsersOwn) {
    const TemporaryFolder home;
    home.Write("elsewhere/x", "");
    home.Write("file", "");
    fs::create_directory_symlink(home / "elsewhere", home / "link");
    for (const std::string name : {"link", "file", "file/below"})
        EXPECT_THROW(PrivateFolder(home / name), RunTimeError) << name;
    if (::geteuid() != 0) return;
    fs::create_directory(home / "foreign");
    ASSERT_EQ(::chown((home / "foreign").c_str(), 1, 1), 0);
    EXPECT_THROW(PrivateFolder(home / "foreign"), RunTimeError);
}

}  // namespace
}  // namespace morpho
