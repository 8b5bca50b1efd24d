#include "theme_editor/theme_discovery.h"

#include "frontpage/environment_discovery.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"

namespace morpho {

std::string FindThemeTempPath(const Program& program, const std::string& version) {
    std::string folder = GetCachePath(program.platform, version);
    if (!folder.ends_with('\\')) folder += '\\';
    const std::string unpacked = folder + "FrontPageTempDir\\mstheme";
    return program.platform.files.Find(unpacked) ? unpacked + "\\" : folder;
}

std::vector<Theme> ListOpenedThemes(const Program& program, const std::string& themeTempPath) {
    std::vector<Theme> opened;
    const std::unique_ptr<Web> web = program.component.application->ActiveWeb();
    if (!web) return opened;
    for (int i = 0; i < web->ThemeCount(); ++i) {
        Theme theme = web->ThemeAt(i);
        if (!FolderExists(program.platform.files, themeTempPath + theme.name)) continue;
        WriteLog(program, "Listing theme \"" + theme.name + "\"...");
        opened.push_back(std::move(theme));
    }
    WriteLog(program, "Web theme: " + web->ThemeProperties(kThemeNameProperty));
    return opened;
}

}  // namespace morpho
