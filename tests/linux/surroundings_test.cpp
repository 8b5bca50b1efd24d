#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <thread>

#include "linux/desktop_environment.h"
#include "linux/desktop_shell.h"
#include "linux/disk_path.h"
#include "linux/user_folders.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

TEST(UserFolders, FollowTheEnvironment) {
    const auto expectFolders = [](std::map<std::string, std::string> variables, const char* cache,
                                  const char* data) {
        variables["HOME"] = "/home/ann";
        const UserFolders folders =
            FindUserFolders([&](const char* name) { return variables[name]; });
        EXPECT_EQ(folders.cache, cache);
        EXPECT_EQ(folders.data, data);
    };
    expectFolders({}, "/home/ann/.cache/morpho", "/home/ann/.local/share/morpho");
    expectFolders({{"XDG_DATA_HOME", "/d"}, {"XDG_CACHE_HOME", "relative"}},
                  "/home/ann/.cache/morpho", "/d/morpho");
}

TEST(DesktopEnvironment, NamesTheSystemForTheLog) {
    const OsVersion os = DesktopEnvironment({}, "/tmp").Os();
    EXPECT_TRUE(os.description.starts_with("Linux " + std::to_string(os.major) + '.'))
        << os.description;
}

class DesktopShellTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    std::string help_ = folder_.Write("help/index.html", "help");
    std::vector<std::string> started_;
    DesktopShell shell_{{folder_ / "none.html", help_}, [this](const auto& command) {
                            started_ = command;
                            return true;
                        }};
};

TEST_F(DesktopShellTest, OpensTheHelpPageForTheHelpViewer) {
    EXPECT_GT(shell_.WinExec("Winhlp32.exe Z:\\opt\\morpho\\morpho.hlp", 1), 31);
    EXPECT_EQ(started_, (std::vector<std::string>{"xdg-open", help_}));
    EXPECT_LE(shell_.WinExec("calc.exe", 1), 31);
}

TEST_F(DesktopShellTest, OpensAddressesAndExistingFilesOnly) {
    const auto expectOpened = [this](const std::string& file, const std::string& target) {
        EXPECT_GT(shell_.Open("open", file, "", 1), 32) << file;
        EXPECT_EQ(started_, (std::vector<std::string>{"xdg-open", target}));
    };
    expectOpened("https://example.org/", "https://example.org/");
    expectOpened(ToWindowsPath(folder_ / "HELP/index.HTML"), help_);
    started_.clear();
    for (const char* file : {"--help", "Z:\\no such file", "javascript:x", "calc", ""})
        EXPECT_LE(shell_.Open("open", file, "", 1), 32) << file;
    EXPECT_LE(shell_.Open("print", "https://example.org/", "", 1), 32);
    EXPECT_TRUE(started_.empty());
}

TEST(StartDetached, TellsWhetherTheProgramBegan) {
    const TemporaryFolder folder;
    EXPECT_TRUE(StartDetached({"touch", folder / "started"}));
    EXPECT_FALSE(StartDetached({folder / "no program"}));
    for (int i = 0; i < 500 && !folder.Has("started"); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_TRUE(folder.Has("started"));
}

}  // namespace
}  // namespace morpho
