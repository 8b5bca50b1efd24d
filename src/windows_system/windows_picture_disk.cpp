#include "windows_system/windows_picture_disk.h"

#include "windows_system/full_path.h"
#include "windows_system/picture_files.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

namespace fs = std::filesystem;

// The system's number for an error that the C++ library has numbered itself.
DWORD SystemNumber(const std::error_code& code, const fs::path& path) {
    if (code.category() == std::system_category()) return static_cast<DWORD>(code.value());
    std::error_code ignored;
    if (code == std::errc::no_such_file_or_directory)
        return fs::is_directory(path.parent_path(), ignored) ? ERROR_FILE_NOT_FOUND
                                                             : ERROR_PATH_NOT_FOUND;
    if (code == std::errc::permission_denied) return ERROR_ACCESS_DENIED;
    if (code == std::errc::file_exists) return ERROR_FILE_EXISTS;
    if (code == std::errc::no_space_on_device) return ERROR_DISK_FULL;
    if (code == std::errc::not_enough_memory) return ERROR_NOT_ENOUGH_MEMORY;
    return ERROR_GEN_FAILURE;
}

}  // namespace

std::optional<fs::path> WindowsPictureDisk::PathOnDisk(std::string_view inside) const {
    if (!IsAbsolutePath(inside)) return {};
    return Wide(inside);
}

colorizer::FileHooks WindowsPictureDisk::PictureHooks() const {
    return {ReplacePicture, VersionOfFile};
}

RunTimeError WindowsPictureDisk::FileError(const std::error_code& code, const fs::path& path,
                                           std::string_view failure) const {
    return SystemError(SystemNumber(code, path), Narrow(fs::path(path).make_preferred().native()),
                       failure);
}

}  // namespace morpho
