#include "linux/flush_files.h"

#include <fcntl.h>

#include <cerrno>
#include <set>

#include "linux/descriptor.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/parallel.h"

namespace morpho {

namespace {

void Flush(const std::string& diskPath) {
    const Descriptor file(::open(diskPath.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen() && errno == ENOENT) return;
    // Some file systems have no flush for folders, and say EINVAL.
    if (!file.IsOpen() || (::fsync(file.Number()) != 0 && errno != EINVAL))
        throw FileError(errno, diskPath, "could not be written");
}

void FlushAll(const std::vector<std::string>& paths) {
    DoAtOnce(paths.size(), [&](std::size_t i) { Flush(paths[i]); });
}

}  // namespace

void FlushFiles(const std::vector<std::string>& diskPaths) {
    FlushAll(diskPaths);
    std::set<std::string> folders;
    for (const std::string& path : diskPaths)
        folders.insert(ParentFolder(path));
    FlushAll({folders.begin(), folders.end()});
}

}  // namespace morpho
