#include "linux/private_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <string_view>

#include "linux/disk_folder.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"

namespace morpho {

namespace {

constexpr std::string_view kRunPrefix = "run-";

void RefuseForeign(const Descriptor& root, const std::string& path) {
    struct stat status = {};
    if (::fstat(root.Number(), &status) != 0) throw FileError(errno, path, "could not be opened");
    if (status.st_uid != ::geteuid())
        throw FileError(ErrorNumber::kPermissionDenied, path, "cannot hold private files",
                        "it belongs to another user");
    if (::fchmod(root.Number(), 0700) != 0)
        throw FileError(errno, path, "could not be made private");
}

Descriptor OpenRoot(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(ParentFolder(path), error);
    if (error) throw FileError(error.value(), ParentFolder(path), "could not be created");
    if (::mkdir(path.c_str(), 0700) != 0 && errno != EEXIST)
        throw FileError(errno, path, "could not be created");
    Descriptor root(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!root.IsOpen() && (errno == ELOOP || errno == ENOTDIR))
        throw FileError(ErrorNumber::kPathFileAccess, path, "cannot hold private files",
                        "it is a link or no folder");
    if (!root.IsOpen()) throw FileError(errno, path, "could not be opened");
    RefuseForeign(root, path);
    return root;
}

// Removes the folders that no running program holds.
void RemoveAbandoned(const Descriptor& root, const std::string& rootPath) {
    for (const DiskEntry& entry : DiskFolder::Open(rootPath, false).Entries()) {
        if (entry.kind != DiskKind::kFolder || !entry.name.starts_with(kRunPrefix)) continue;
        const Descriptor folder(::openat(root.Number(), entry.name.c_str(),
                                         O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!folder.IsOpen() || ::flock(folder.Number(), LOCK_EX | LOCK_NB) != 0) continue;
        std::error_code ignored;
        std::filesystem::remove_all(JoinDiskPath(rootPath, entry.name), ignored);
    }
}

}  // namespace

PrivateFolder::PrivateFolder(const std::string& root) {
    const Descriptor open = OpenRoot(root);
    // One program at a time, so that none removes a folder that another has made but not yet held.
    ::flock(open.Number(), LOCK_EX);
    RemoveAbandoned(open, root);
    Create(open, root);
}

PrivateFolder::~PrivateFolder() {
    Remove();
}

void PrivateFolder::Remove() noexcept {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    held_.Close();
}

void PrivateFolder::Create(const Descriptor& root, const std::string& rootPath) {
    const std::string stem = std::string(kRunPrefix) + std::to_string(::getpid());
    std::string name = stem;
    for (int serial = 2; ::mkdirat(root.Number(), name.c_str(), 0700) != 0; ++serial) {
        if (errno != EEXIST) throw FileError(errno, rootPath, "could not be written");
        name = stem + "-" + std::to_string(serial);
    }
    path_ = JoinDiskPath(rootPath, name);
    held_ = Descriptor(
        ::openat(root.Number(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const bool ready = held_.IsOpen() && ::flock(held_.Number(), LOCK_EX | LOCK_NB) == 0 &&
                       ::mkdir(Temporary().c_str(), 0700) == 0 &&
                       ::mkdir(Cache().c_str(), 0700) == 0;
    if (!ready) {
        const int code = errno;
        Remove();
        throw FileError(code, rootPath, "could not be written");
    }
}

}  // namespace morpho
