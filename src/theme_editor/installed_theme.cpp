#include "theme_editor/installed_theme.h"

#include "frontpage/environment.h"
#include "platform/file_system.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "shared/mod_shared_code.h"
#include "theme_editor/theme_description.h"
#include "theme_editor/theme_package.h"

namespace morpho {

namespace {

constexpr std::string_view kLanguage = "1033";

// The description of a theme that is being installed waits beside the theme's folder. No theme can
// be called so, for "#" is refused in names.
std::string WaitingInf(const std::string& themesFolder, const std::string& name) {
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

std::string GetThemesFolder(const Program& program, bool shared) {
    return GetFrontPageFolder(program.platform, program.component.application->Version(),
                              FrontPageFolder::kThemes, kLanguage, shared);
}

void InstallTheme(const Platform& platform, const InstalledTheme& source,
                  const std::string& themesFolder, const std::string& name,
                  const std::string& title, const std::string& workFolder) {
    const InstalledTheme installed{WithSeparator(themesFolder) + name, name};
    const std::string waiting = WaitingInf(themesFolder, name);
    CreateWithParents(platform.files, themesFolder);
    // Whoever dies here leaves the earlier description, or a folder without one, which is no theme
    // and keeps its name free for the next attempt. The waiting file tells that folder apart.
    WriteThemeDescription(platform, source.Inf(), waiting, installed.folder, title);
    RebuildThemePackage(platform, source.Elm(), installed.Elm(), workFolder);
    platform.files.MoveFile(waiting, installed.Inf());
}

bool IsHalfInstalled(const FileSystem& files, const std::string& themesFolder,
                     const std::string& name) {
    const InstalledTheme installed{WithSeparator(themesFolder) + name, name};
    return files.Find(WaitingInf(themesFolder, name)) && !files.Find(installed.Inf());
}

}  // namespace morpho
