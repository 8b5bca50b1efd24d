#include "desktop/disk/disk_file_system.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <functional>

#include "desktop/disk/disk_path.h"
#include "desktop/temporary_folder.h"
#include "platform/run_time_error.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

class DiskFileSystemTest : public testing::Test {
  protected:
    std::string Windows(const std::string& name) const { return ToWindowsPath(folder_ / name); }

    void ExpectError(ErrorNumber number, const std::string& named,
                     const std::function<void()>& operation) {
        try {
            operation();
            ADD_FAILURE() << "no error for " << named;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), number) << error.what();
            EXPECT_NE(std::string(error.what()).find(named), std::string::npos) << error.what();
        }
    }
    // Nothing that was written beside a file was left there.
    void ExpectOnly(const std::string& name, std::size_t count) {
        const fs::directory_iterator entries(folder_ / name);
        EXPECT_EQ(std::distance(begin(entries), end(entries)), static_cast<std::ptrdiff_t>(count));
    }

    TemporaryFolder folder_;
    DiskFileSystem files_;
};

TEST_F(DiskFileSystemTest, WritingKeepsTheSpellingAndModeOfTheExistingFile) {
    const std::string path = folder_.Write("Pages/Index.HTM", "old");
    fs::permissions(path, fs::perms(0640));
    files_.WriteFile(Windows("pages/index.htm"), "new");
    EXPECT_EQ(folder_.Read("Pages/Index.HTM"), "new");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    ExpectOnly("Pages", 1);
}

TEST_F(DiskFileSystemTest, WritingReplacesALinkAndLeavesWhatItLedTo) {
    folder_.Write("outside.gif", "outside");
    fs::create_symlink(folder_ / "outside.gif", folder_ / "link.gif");
    files_.WriteFile(Windows("link.gif"), "new");
    EXPECT_EQ(folder_.Read("outside.gif"), "outside");
    EXPECT_EQ(folder_.Read("link.gif"), "new");
    EXPECT_FALSE(fs::is_symlink(folder_ / "link.gif"));
}

TEST_F(DiskFileSystemTest, AFailureNamesTheFileAndLeavesNothingBehind) {
    fs::permissions(folder_.Write("locked.gif", "x"), fs::perms(0444));
    folder_.Write("file", "x");
    ::mkfifo((folder_ / "pipe").c_str(), 0600);
    const std::string longName(300, 'x');
    ExpectError(ErrorNumber::kPathFileAccess, "locked.gif",
                [&] { files_.WriteFile(Windows("locked.gif"), "y"); });
    ExpectError(ErrorNumber::kPathNotFound, "missing",
                [&] { files_.WriteFile(Windows("missing/a"), "y"); });
    ExpectError(ErrorNumber::kPathNotFound, "file/a",
                [&] { files_.WriteFile(Windows("file/a"), "y"); });
    ExpectError(ErrorNumber::kPathFileAccess, "xxx",
                [&] { files_.WriteFile(Windows(longName), "y"); });
    ExpectError(ErrorNumber::kFileNotFound, "none", [&] { files_.ReadFile(Windows("none")); });
    ExpectError(ErrorNumber::kPathFileAccess, "pipe", [&] { files_.ReadFile(Windows("pipe")); });
    ExpectError(ErrorNumber::kPathNotFound, "C:\\a", [&] { files_.ReadFile("C:\\a"); });
    ExpectOnly("", 3);
}

TEST_F(DiskFileSystemTest, ListsOnlyWhatCanBeLookedAt) {
    folder_.Write("b.gif", "12345");
    folder_.Write("A/x", "");
    folder_.Write("caf\xE9", "");
    fs::create_symlink(folder_ / "nowhere", folder_ / "dangling");
    ::mkfifo((folder_ / "pipe").c_str(), 0600);
    const auto entries = files_.List(Windows(""));
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_TRUE(entries[0].IsFolder());
    EXPECT_EQ(entries[1].name, "b.gif");
    EXPECT_EQ(entries[1].size, 5U);
    EXPECT_EQ(NameToDisk(entries[2].name), "caf\xE9");
    EXPECT_EQ(files_.ReadFile(Windows("") + "\\" + entries[2].name), "");
    EXPECT_FALSE(files_.Find(Windows("dangling")));
    EXPECT_FALSE(files_.Find("C:\\"));
}

TEST_F(DiskFileSystemTest, RenamesAFileThatOnlyChangesItsLetterCase) {
    folder_.Write("theme.inf", "x");
    files_.MoveFile(Windows("theme.inf"), Windows("Theme.INF"));
    EXPECT_TRUE(folder_.Has("Theme.INF"));
    ExpectOnly("", 1);
}

TEST_F(DiskFileSystemTest, CopyingAFolderLeavesOutLinksAndSpecialFiles) {
    fs::permissions(folder_.Write("from/a.gif", "1"), fs::perms(0444));
    folder_.Write("from/sub/b.gif", "2");
    folder_.Write("outside/secret", "3");
    fs::create_symlink(folder_ / "outside/secret", folder_ / "from/link");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "from/folder");
    ::mkfifo((folder_ / "from/pipe").c_str(), 0600);
    folder_.Write("to/A.GIF", "old");
    files_.CopyFolder(Windows("from"), Windows("to"));
    EXPECT_EQ(folder_.Read("to/A.GIF"), "1");
    EXPECT_EQ(folder_.Read("to/sub/b.gif"), "2");
    ExpectOnly("to", 2);
    files_.WriteFile(Windows("to/a.gif"), "writable");
}

TEST_F(DiskFileSystemTest, CopyingAFolderIntoItselfIsRefused) {
    folder_.Write("from/a.gif", "1");
    ExpectError(ErrorNumber::kPathFileAccess, "from",
                [&] { files_.CopyFolder(Windows("from"), Windows("from/inner")); });
    ExpectError(ErrorNumber::kPathNotFound, "none",
                [&] { files_.CopyFolder(Windows("none"), Windows("to")); });
    EXPECT_FALSE(folder_.Has("to"));
}

TEST_F(DiskFileSystemTest, DeletingAFolderNeverFollowsLinks) {
    folder_.Write("outside/kept", "x");
    folder_.Write("web/a/b", "x");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "web/link");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "alone");
    files_.DeleteFolder(Windows("WEB"));
    files_.DeleteFolder(Windows("alone"));
    EXPECT_FALSE(folder_.Has("web"));
    EXPECT_FALSE(folder_.Has("alone"));
    EXPECT_TRUE(folder_.Has("outside/kept"));
    folder_.Write("file", "x");
    ExpectError(ErrorNumber::kPathNotFound, "file", [&] { files_.DeleteFolder(Windows("file")); });
}

TEST_F(DiskFileSystemTest, AWriteThatBreaksOffLeavesWhatWasThere) {
    folder_.Write("a.gif", "old");
    folder_.Write("a.log", "line\n");
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit tight = {1000, limit.rlim_max};
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &tight);
    const std::string much(2000, 'x');
    ExpectError(ErrorNumber::kDeviceIo, "a.gif", [&] { files_.WriteFile(Windows("a.gif"), much); });
    ExpectError(ErrorNumber::kDeviceIo, "a.log",
                [&] { files_.AppendFile(Windows("a.log"), much); });
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, ignored);
    EXPECT_EQ(folder_.Read("a.gif"), "old");
    EXPECT_EQ(folder_.Read("a.log"), "line\n");
    ExpectOnly("", 2);
}

}  // namespace
}  // namespace morpho
