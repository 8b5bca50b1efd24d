#include "linux/flush_files.h"

#include <fcntl.h>

#include <cerrno>

#include "linux/file_error.h"
#include "web_host/parallel.h"

namespace morpho {

namespace {

// Some file systems have no flush for folders, and say EINVAL.
void Flush(const Descriptor& file, const std::string& path) {
    if (!file.IsOpen() || (::fsync(file.Number()) != 0 && errno != EINVAL))
        throw FileError(errno, path, "could not be written");
}

}  // namespace

void FlushFiles(const DiskFolder& folder, const std::vector<std::string>& names) {
    InParallel(names.size(), [&](std::size_t i) {
        const int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
        const Descriptor file(::openat(folder.Number(), names[i].c_str(), flags));
        if (file.IsOpen() || errno != ENOENT) Flush(file, folder.PathOf(names[i]));
    });
    Flush(folder.Handle(), folder.Path());
}

}  // namespace morpho
