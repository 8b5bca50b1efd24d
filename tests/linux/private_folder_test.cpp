#include "linux/private_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/run_time_error.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

class PrivateFolderTest : public testing::Test {
  protected:
    const TemporaryFolder home_;
    const std::string root_ = home_ / "cache/morpho";
};

TEST_F(PrivateFolderTest, IsTheUsersAloneAndGoesWithTheProgram) {
    {
        const PrivateFolder folder(root_);
        EXPECT_EQ(fs::status(root_).permissions(), fs::perms(0700));
        EXPECT_EQ(fs::status(folder.Path()).permissions(), fs::perms(0700));
    }
    EXPECT_EQ(home_.Below("cache"), (Tree{{"morpho/", ""}}));
}

TEST_F(PrivateFolderTest, TheNextStartRemovesWhatADeadProgramLeft) {
    if (::fork() == 0) {
        std::ofstream((new PrivateFolder(root_))->Temporary() + "/x") << "x";
        ::_exit(0);
    }
    ::wait(nullptr);
    home_.Write("outside/kept", "x");
    fs::create_directory_symlink(home_ / "outside", root_ + "/run-link");
    home_.Write("cache/morpho/of-another-kind", "x");
    EXPECT_EQ(home_.Below("cache/morpho").size(), 6U);

    { const PrivateFolder folder(root_); }
    EXPECT_EQ(home_.Below("cache/morpho"),
              (Tree{{"of-another-kind", "x"}, {"run-link", "-> " + home_ / "outside"}}));
    EXPECT_TRUE(home_.Has("outside/kept"));
}

TEST_F(PrivateFolderTest, RefusesAPlaceThatIsNotTheUsersOwn) {
    home_.Write("elsewhere/x", "");
    home_.Write("file", "");
    fs::create_directory_symlink(home_ / "elsewhere", home_ / "link");
    for (const std::string name : {"link", "file", "file/below"})
        EXPECT_THROW(PrivateFolder(home_ / name), RunTimeError) << name;
    if (::geteuid() != 0) return;
    ASSERT_EQ(::chown((home_ / "elsewhere").c_str(), 1, 1), 0);
    EXPECT_THROW(PrivateFolder(home_ / "elsewhere"), RunTimeError);
}

}  // namespace
}  // namespace morpho
