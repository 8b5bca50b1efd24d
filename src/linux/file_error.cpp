#include "linux/file_error.h"

#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "linux/disk_path.h"
#include "text/utf8.h"

namespace morpho {

namespace {

struct Cause {
    ErrorNumber number;
    std::string reason;
};

bool FolderIsMissing(std::string_view diskPath) {
    struct stat status = {};
    return ::stat(ParentFolder(diskPath).c_str(), &status) != 0 || !S_ISDIR(status.st_mode);
}

Cause CauseOf(int code, std::string_view diskPath) {
    switch (code) {
        case ENOENT:
            if (FolderIsMissing(diskPath))
                return {ErrorNumber::kPathNotFound, "its folder does not exist"};
            return {ErrorNumber::kFileNotFound, "it does not exist"};
        case ENOTDIR:
            return {ErrorNumber::kPathNotFound, "a folder is expected there"};
        case EACCES:
        case EPERM:
            return {ErrorNumber::kPermissionDenied, "permission is denied"};
        case EROFS:
            return {ErrorNumber::kPermissionDenied, "the disk is read-only"};
        case ENOSPC:
            return {ErrorNumber::kDiskFull, "the disk is full"};
        case EDQUOT:
            return {ErrorNumber::kDiskFull, "the disk quota is used up"};
        case EEXIST:
        case ENOTEMPTY:
            return {ErrorNumber::kFileExists, "it exists already"};
        case EISDIR:
            return {ErrorNumber::kPathFileAccess, "it is a folder"};
        case ENAMETOOLONG:
            return {ErrorNumber::kPathFileAccess, "its name is too long"};
        case ELOOP:
            return {ErrorNumber::kPathFileAccess, "it is a link that must not be followed"};
        case EINVAL:
            return {ErrorNumber::kPathFileAccess, "the operation is not possible"};
        case ENOMEM:
            return {ErrorNumber::kOutOfMemory, "memory is exhausted"};
        default:
            return {ErrorNumber::kDeviceIo, std::generic_category().message(code)};
    }
}

}  // namespace

RunTimeError FileError(int code, std::string_view diskPath, std::string_view failure) {
    const Cause cause = CauseOf(code, diskPath);
    return FileError(cause.number, diskPath, failure, cause.reason);
}

RunTimeError FileError(ErrorNumber number, std::string_view diskPath, std::string_view failure,
                       std::string_view reason) {
    std::string text = "\"" + ValidUtf8(diskPath) + "\" ";
    text.append(failure).append(": ").append(reason).append(".");
    return RunTimeError(number, text);
}

}  // namespace morpho
