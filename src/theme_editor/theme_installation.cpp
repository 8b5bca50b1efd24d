#include "theme_editor/theme_installation.h"

#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"
#include "theme_editor/description_files.h"
#include "theme_editor/installed_theme.h"
#include "theme_editor/rebuilt_package.h"

namespace morpho {

namespace {

InstalledTheme Installed(const std::string& themesFolder, const std::string& name) {
    return {WithSeparator(themesFolder) + name, name};
}

// The description of a theme that is being installed, until the theme is complete. It lies beside
// the theme's folder. No theme can have this name, because "#" is refused in names.
std::string TemporaryInf(const std::string& themesFolder, const std::string& name) {
    return WithSeparator(themesFolder) + name + "#.inf";
}

// A user who never had a theme may lack the folders above it too.
void CreateWithParents(FileSystem& files, const std::string& folder) {
    if (FolderExists(files, folder)) return;
    const auto separator = folder.rfind('\\');
    if (separator != std::string::npos) CreateWithParents(files, folder.substr(0, separator));
    files.CreateFolder(folder);
}

}  // namespace

ThemeInstallation::ThemeInstallation(const Platform& platform, const std::string& themesFolder,
                                     const std::string& name, const std::string& copies)
    : platform_(platform), themesFolder_(themesFolder), name_(name) {
    backup_.emplace(platform.files, Installed(themesFolder, name).folder, copies);
}

ThemeInstallation::~ThemeInstallation() {
    backup_.reset();
    FileSystem& files = platform_.files;
    const InstalledTheme installed = Installed(themesFolder_, name_);
    const std::string temporary = TemporaryInf(themesFolder_, name_);
    try {
        // If the folder could not be removed, this file marks it as no theme.
        const bool needed = FolderExists(files, installed.folder) && !files.Find(installed.Inf());
        if (!needed && files.Find(temporary)) files.Delete(temporary);
    } catch (const RunTimeError&) {
        // The next installation of that name replaces it.
    }
}

void ThemeInstallation::Install(const InstalledTheme& source, const std::string& title,
                                const std::string& workFolder) {
    const InstalledTheme installed = Installed(themesFolder_, name_);
    const std::string temporary = TemporaryInf(themesFolder_, name_);
    CreateWithParents(platform_.files, themesFolder_);
    // A program that is killed here leaves the earlier description, or a folder without one, which
    // is no theme and keeps its name free for the next attempt. The temporary description tells
    // that folder from a folder that somebody else made.
    WriteThemeDescription(platform_, source.Inf(), temporary, installed.folder, title);
    RebuildThemePackage(platform_, source.Elm(), installed.Elm(), workFolder);
    platform_.files.Move(temporary, installed.Inf());
}

bool IsHalfInstalled(const FileSystem& files, const std::string& themesFolder,
                     const std::string& name) {
    // In this order, because a folder of many themes is searched long for what is not there.
    return !files.Find(Installed(themesFolder, name).Inf()) &&
           files.Find(TemporaryInf(themesFolder, name));
}

}  // namespace morpho
