#include "linux/disk_file_system.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <functional>

#include "linux/disk_path.h"
#include "support/file_system_contract.h"
#include "support/temporary_folder.h"

namespace morpho::test {
namespace {

class DiskHost {
  public:
    FileSystem& Subject() { return files_; }
    std::string Folder() { return ToWindowsPath(folder_.Path().string()); }

  private:
    TemporaryFolder folder_;
    DiskFileSystem files_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Disk, FileSystemContract, DiskHost);

namespace fs = std::filesystem;
using testing::AllOf, testing::HasSubstr, testing::Property, testing::Throws;

class DiskFileSystemTest : public testing::Test {
  protected:
    std::string Windows(const std::string& name) const { return ToWindowsPath(folder_ / name); }

    static void ExpectError(ErrorNumber number, const char* named,
                            const std::function<void()>& operation) {
        EXPECT_THAT(operation,
                    Throws<RunTimeError>(AllOf(Property(&RunTimeError::Number, number),
                                               Property(&RunTimeError::what, HasSubstr(named)))));
    }

    TemporaryFolder folder_;
    DiskFileSystem files_;
};

TEST_F(DiskFileSystemTest, WritingKeepsTheSpellingOwnerGroupAndModeOfTheExistingFile) {
    const std::string path = folder_.Write("Pages/Index.HTM", "old");
    // Only root can give files away.
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(path.c_str(), 65534, 33), 0);
    }
    fs::permissions(path, fs::perms(0640));
    struct stat before = {}, after = {};
    ASSERT_EQ(::stat(path.c_str(), &before), 0);
    files_.WriteFile(Windows("pages/index.htm"), "new");
    EXPECT_EQ(folder_.Below(""), (Tree{{"Pages/", ""}, {"Pages/Index.HTM", "new"}}));
    ASSERT_EQ(::stat(path.c_str(), &after), 0);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(after.st_mode, before.st_mode);
}

TEST_F(DiskFileSystemTest, WritingReplacesALinkAndLeavesWhatItLedTo) {
    folder_.Write("outside.gif", "outside");
    fs::create_symlink(folder_ / "outside.gif", folder_ / "link.gif");
    files_.WriteFile(Windows("link.gif"), "new");
    EXPECT_EQ(folder_.Below(""), (Tree{{"outside.gif", "outside"}, {"link.gif", "new"}}));
}

TEST_F(DiskFileSystemTest, AFailureNamesTheFileAndLeavesNothingBehind) {
    fs::permissions(folder_.Write("locked.gif", "x"), fs::perms(0444));
    folder_.Write("file", "x");
    ::mkfifo((folder_ / "pipe").c_str(), 0600);
    const std::string longName(300, 'x');
    ExpectError(ErrorNumber::kPathFileAccess, "locked.gif",
                [&] { files_.WriteFile(Windows("locked.gif"), "y"); });
    ExpectError(ErrorNumber::kPathNotFound, "file/a",
                [&] { files_.WriteFile(Windows("file/a"), "y"); });
    ExpectError(ErrorNumber::kPathFileAccess, "xxx",
                [&] { files_.WriteFile(Windows(longName), "y"); });
    ExpectError(ErrorNumber::kPathFileAccess, "pipe", [&] { files_.ReadFile(Windows("pipe")); });
    ExpectError(ErrorNumber::kPathNotFound, "C:\\a", [&] { files_.ReadFile("C:\\a"); });
    fs::remove(folder_ / "pipe");
    EXPECT_EQ(folder_.Below(""), (Tree{{"locked.gif", "x"}, {"file", "x"}}));
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

TEST_F(DiskFileSystemTest, CopyingAFolderLeavesOutLinksAndSpecialFiles) {
    fs::permissions(folder_.Write("from/a.gif", "1"), fs::perms(0444));
    folder_.Write("from/sub/b.gif", "2");
    folder_.Write("outside/secret", "3");
    fs::create_symlink(folder_ / "outside/secret", folder_ / "from/link");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "from/folder");
    ::mkfifo((folder_ / "from/pipe").c_str(), 0600);
    folder_.Write("to/A.GIF", "old");
    folder_.Write("from/same", "3");
    fs::create_symlink(folder_ / "outside/secret", folder_ / "to/same");
    files_.CopyFolder(Windows("from"), Windows("to"));
    EXPECT_EQ(folder_.Below("to"),
              (Tree{{"A.GIF", "1"}, {"same", "3"}, {"sub/", ""}, {"sub/b.gif", "2"}}));
    EXPECT_FALSE(fs::is_symlink(folder_ / "to/same"));
    files_.WriteFile(Windows("to/a.gif"), "writable");
}

TEST_F(DiskFileSystemTest, CopyingAFolderIntoItselfIsRefused) {
    folder_.Write("from/a.gif", "1");
    ExpectError(ErrorNumber::kPathFileAccess, "from",
                [&] { files_.CopyFolder(Windows("from"), Windows("from/inner")); });
}

TEST_F(DiskFileSystemTest, DeletingAFolderNeverFollowsLinks) {
    folder_.Write("outside/kept", "x");
    folder_.Write("web/a/b", "x");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "web/link");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "alone");
    files_.DeleteFolder(Windows("WEB"));
    files_.DeleteFolder(Windows("alone"));
    EXPECT_EQ(folder_.Below(""), (Tree{{"outside/", ""}, {"outside/kept", "x"}}));
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
    EXPECT_EQ(folder_.Below(""), (Tree{{"a.gif", "old"}, {"a.log", "line\n"}}));
}

}  // namespace
}  // namespace morpho::test
