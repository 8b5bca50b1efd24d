#include "windows_program/windows_desktop.h"

#include "desktop/path_text.h"
#include "windows_program/console.h"
#include "windows_program/settings_registry.h"
#include "windows_program/windows_work_folder.h"
#include "windows_system/full_path.h"
#include "windows_system/windows_environment.h"
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

fs::path WindowsDesktop::AbsolutePath(const fs::path& path) const {
    return PathOf(ShownPath(FullPathOf(path.native())));
}

fs::path WindowsDesktop::RealPath(const fs::path& path, std::error_code& error) const {
    const std::wstring real = PathWithoutLinks(FullPathOf(path.native()), error);
    return error ? fs::path() : PathOf(ShownPath(real));
}

std::string WindowsDesktop::PathInside(const fs::path& path) const {
    return TextOf(fs::path(path).make_preferred());
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

bool WindowsDesktop::IsErrorOutputWatched() const {
    return IsConsoleWatched();
}

}  // namespace morpho
