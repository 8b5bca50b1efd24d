#include "linux/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "linux/file_error.h"
#include "linux/linux_disk.h"
#include "linux/whole_file.h"
#include "web_host/limits.h"

namespace morpho {

namespace {

constexpr std::string_view kFailure = "could not be locked";
// Each one fails because another program removed the file in the meantime.
constexpr int kMaxAttempts = 1000;

class LockFile : public FolderLock {
  public:
    LockFile(const DiskFolder& folder, std::string name, Descriptor file)
        : folder_(folder.Again()), name_(std::move(name)), file_(std::move(file)) {}
    // The name is removed first: a program that locks from now on creates a new file.
    ~LockFile() override { ::unlinkat(folder_.Number(), name_.c_str(), 0); }
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

  private:
    DiskFolder folder_;
    std::string name_;
    Descriptor file_;
};

// Whether the open file is no longer the one of this name: its holder has removed it meanwhile.
bool IsGone(const DiskFolder& folder, const std::string& name, const Descriptor& file) {
    struct stat open = {};
    struct stat there = {};
    return ::fstat(file.Number(), &open) != 0 ||
           ::fstatat(folder.Number(), name.c_str(), &there, AT_SYMLINK_NOFOLLOW) != 0 ||
           open.st_ino != there.st_ino || open.st_dev != there.st_dev;
}

Descriptor OpenLockFile(const DiskFolder& folder, const std::string& name) {
    const int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(::openat(folder.Number(), name.c_str(), O_RDWR | O_CREAT | flags, 0666));
    // Another user's program that was killed left it. It can be locked, but not written.
    if (!file.IsOpen() && errno == EACCES)
        file = Descriptor(::openat(folder.Number(), name.c_str(), O_RDONLY | flags));
    struct stat status = {};
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0)
        throw FileError(errno, folder.PathOf(name), kFailure);
    if (!S_ISREG(status.st_mode))
        throw FileError(ErrorNumber::kPathFileAccess, folder.PathOf(name), kFailure,
                        "it is not a file");
    // The other name may be outside of the web, and the line below would be written into it.
    if (status.st_nlink > 1)
        throw FileError(ErrorNumber::kPathFileAccess, folder.PathOf(name), kFailure,
                        "the file has another name besides");
    return file;
}

std::string FirstLine(const Descriptor& file) {
    char text[kMaxHolderBytes];
    const ssize_t count = ::pread(file.Number(), text, sizeof text, 0);
    std::string line(text, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    line.resize(std::min(line.find('\n'), line.size()));
    std::erase_if(line, [](unsigned char c) { return c < ' ' || c > '~'; });
    return line.empty() ? "another program" : line;
}

void WriteHolder(const Descriptor& file) {
    const LinuxDisk disk;
    const std::string line =
        "program " + std::to_string(disk.Program()) + " on " + disk.Machine() + "\n";
    if (::ftruncate(file.Number(), 0) != 0 || !WriteAll(file.Number(), line)) {
        // The line is for people only.
        return;
    }
}

}  // namespace

std::unique_ptr<FolderLock> TryLockFile(const DiskFolder& folder, const std::string& name,
                                        std::string& holder) {
    for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
        Descriptor file = OpenLockFile(folder, name);
        if (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            holder = FirstLine(file);
            return nullptr;
        }
        if (IsGone(folder, name, file)) continue;
        WriteHolder(file);
        return std::make_unique<LockFile>(folder, name, std::move(file));
    }
    throw FileError(ErrorNumber::kPermissionDenied, folder.PathOf(name), kFailure,
                    "other programs keep replacing it");
}

}  // namespace morpho
