#include "windows_program/windows_desktop.h"

#include "desktop/path_text.h"
#include "windows_program/console.h"
#include "windows_program/settings_registry.h"
#include "windows_program/windows_work_folder.h"
#include "windows_system/picture_files.h"
#include "windows_system/windows_environment.h"
#include "windows_system/windows_error.h"
#include "windows_system/windows_file_system.h"
// These need the header that all others include first.
#include <objbase.h>
#include <shlobj.h>

namespace morpho {

namespace {

namespace fs = std::filesystem;

fs::path KnownFolder(const KNOWNFOLDERID& id) {
    PWSTR found = nullptr;
    const HRESULT result = ::SHGetKnownFolderPath(id, KF_FLAG_DEFAULT, nullptr, &found);
    const fs::path folder = found ? found : L"";
    ::CoTaskMemFree(found);
    if (FAILED(result) || folder.empty())
        throw RunTimeError(ErrorNumber::kPathNotFound, "The user's folders are not known.");
    return folder;
}

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

ProgramFolders WindowsDesktop::Folders() const {
    const fs::path own = KnownFolder(FOLDERID_LocalAppData) / "Morpho";
    return {.desktop = KnownFolder(FOLDERID_Desktop),
            .appData = KnownFolder(FOLDERID_RoamingAppData),
            .data = own,
            .cache = own / "Work"};
}

fs::path WindowsDesktop::FolderOfProgram() const {
    return PathOf(FolderOfModule());
}

std::string WindowsDesktop::PathInside(const fs::path& path) const {
    return TextOf(fs::path(path).make_preferred());
}

std::optional<fs::path> WindowsDesktop::PathOnDisk(std::string_view inside) const {
    const fs::path path = PathOf(inside);
    if (!path.is_absolute()) return {};
    return path;
}

std::unique_ptr<WorkFolder> WindowsDesktop::MakeWorkFolder(const fs::path& root) const {
    return std::make_unique<WindowsWorkFolder>(PathInside(root));
}

std::unique_ptr<FileSystem> WindowsDesktop::MakeFiles(const fs::path& scratch) const {
    return std::make_unique<WindowsFileSystem>(PathInside(scratch));
}

std::unique_ptr<MemoryRegistry> WindowsDesktop::MakeRegistry(const ProgramFolders& /*folders*/,
                                                             const RegistryData& machine) const {
    return std::make_unique<SettingsRegistry>(machine);
}

std::unique_ptr<Environment> WindowsDesktop::MakeEnvironment(const ComponentVersion& version,
                                                             const fs::path& temporary) const {
    return std::make_unique<WindowsEnvironment>(version, PathInside(temporary));
}

colorizer::FileHooks WindowsDesktop::PictureHooks() const {
    return {ReplacePicture, VersionOfFile};
}

RunTimeError WindowsDesktop::FileError(const std::error_code& code, const fs::path& path,
                                       std::string_view failure) const {
    return SystemError(SystemNumber(code, path), PathInside(path), failure);
}

bool WindowsDesktop::IsErrorOutputWatched() const {
    return IsConsoleWatched();
}

}  // namespace morpho
