#include "linux/disk_folder.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string_view>

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

DiskKind KindOfMode(mode_t mode) {
    if (S_ISREG(mode)) return DiskKind::kFile;
    if (S_ISDIR(mode)) return DiskKind::kFolder;
    return S_ISLNK(mode) ? DiskKind::kLink : DiskKind::kOther;
}

// Some file systems do not tell the kind when listing; then it is looked up.
DiskKind KindOf(int folder, const dirent& entry) {
    if (entry.d_type != DT_UNKNOWN) return KindOfMode(DTTOIF(entry.d_type));
    struct stat status = {};
    if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return DiskKind::kOther;
    return KindOfMode(status.st_mode);
}

// Opens an entry of the folder itself, not through a link or a mount. Kernels before 5.6, and
// some sandboxes, have no openat2; then O_NOFOLLOW, which the flags hold, does it for the one step.
int OpenBeneath(int folder, const std::string& name, int flags) {
    struct open_how how = {};
    how.flags = static_cast<std::uint64_t>(flags);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    const long number = ::syscall(SYS_openat2, folder, name.c_str(), &how, sizeof how);
    if (number >= 0 || (errno != ENOSYS && errno != EPERM)) return static_cast<int>(number);
    return ::openat(folder, name.c_str(), flags);
}

}  // namespace

DiskFolder::DiskFolder(std::string path, Descriptor folder)
    : path_(std::move(path)), folder_(std::move(folder)) {}

DiskFolder DiskFolder::Open(const std::string& diskPath, bool followLastLink) {
    const int links = followLastLink ? 0 : O_NOFOLLOW;
    Descriptor folder(::open(diskPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | links));
    if (!folder.IsOpen()) {
        // A missing folder is a missing path, whatever stands above it.
        if (errno == ENOENT)
            throw FileError(ErrorNumber::kPathNotFound, diskPath, "could not be opened",
                            "the folder does not exist");
        throw FileError(errno, diskPath, "could not be opened");
    }
    return DiskFolder(diskPath, std::move(folder));
}

std::vector<DiskEntry> DiskFolder::Entries() const {
    // A second descriptor, because reading the entries moves the position of the one it is given.
    Descriptor own(::openat(Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(
        own.IsOpen() ? ::fdopendir(own.Number()) : nullptr, ::closedir);
    if (!listing) throw FileError(errno, path_, "could not be listed");
    own.Release();
    std::vector<DiskEntry> entries;
    errno = 0;
    while (const dirent* entry = ::readdir(listing.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            entries.push_back({std::string(name), KindOf(Number(), *entry)});
        errno = 0;
    }
    if (errno != 0) throw FileError(errno, path_, "could not be listed");
    std::sort(entries.begin(), entries.end(),
              [](const DiskEntry& a, const DiskEntry& b) { return a.name < b.name; });
    return entries;
}

std::optional<DiskEntry> DiskFolder::Find(const std::string& name) const {
    if (!IsEntryName(name)) return {};
    struct stat status = {};
    if (::fstatat(Number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return DiskEntry{name, KindOfMode(status.st_mode)};
    for (DiskEntry& entry : Entries()) {
        if (EqualIgnoringCase(entry.name, name)) return std::move(entry);
    }
    return {};
}

DiskFolder DiskFolder::Subfolder(const std::string& name) const {
    const int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    Descriptor folder(OpenBeneath(Number(), name, flags));
    if (!folder.IsOpen()) throw FileError(errno, PathOf(name), "could not be opened");
    return DiskFolder(PathOf(name), std::move(folder));
}

DiskFolder DiskFolder::Again() const {
    Descriptor folder(::fcntl(Number(), F_DUPFD_CLOEXEC, 0));
    if (!folder.IsOpen()) throw FileError(errno, path_, "could not be opened");
    return DiskFolder(path_, std::move(folder));
}

Descriptor DiskFolder::OpenFile(const std::string& name) const {
    // Without O_NONBLOCK, opening a pipe would wait for a writer.
    const int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(OpenBeneath(Number(), name, flags));
    if (!file.IsOpen()) throw FileError(errno, PathOf(name), "could not be opened");
    struct stat status = {};
    if (::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        throw FileError(ErrorNumber::kPathFileAccess, PathOf(name), "could not be opened",
                        "it is not a file");
    return file;
}

std::string DiskFolder::PathOf(const std::string& name) const {
    return JoinDiskPath(path_, name);
}

}  // namespace morpho
