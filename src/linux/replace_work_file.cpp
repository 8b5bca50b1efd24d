#include "linux/replace_work_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace morpho {

bool ReplaceWorkFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_EXCHANGE) == 0) {
        ::unlink(from.c_str());
        return true;
    }
    // There is no such file yet, or the file system cannot exchange two.
    return ::rename(from.c_str(), to.c_str()) == 0;
}

}  // namespace morpho
