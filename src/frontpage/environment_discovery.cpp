#include "frontpage/environment_discovery.h"

#include <array>
#include <cstdio>

#include "platform/environment.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"
#include "shared/reg_key.h"

namespace morpho {

namespace {

// The differences between the known releases of FrontPage.
struct Release {
    std::string_view major;
    std::string_view office;        // in registry paths
    std::string_view folderSuffix;  // of the folders shared by all users
};
constexpr std::array<Release, 3> kReleases = {
    {{"4", "9.0", ""}, {"5", "10.0", ""}, {"6", "11.0", "11"}}};

const Release* FindRelease(std::string_view version) {
    const std::string_view major = version.substr(0, version.find('.'));
    for (const Release& release : kReleases) {
        if (release.major == major) return &release;
    }
    return nullptr;
}

// The identifier under which the explorer of this release is registered, whatever its minor
// version.
std::string RegisteredExplorerProgId(std::string_view version) {
    return ExplorerProgId(std::string(version.substr(0, version.find('.'))) + ".0");
}

std::string ShellFolder(const Platform& platform, std::string_view name) {
    std::string folder;
    GetRegString(platform, kCurrentUser, kShellFolders, name, folder);
    return folder;
}

// The default value of HKEY_CLASSES_ROOT\<path>; empty when there is none.
std::string ClassValue(const Platform& platform, const std::string& path) {
    RegKey classes(platform.registry, platform.environment);
    std::string value;
    classes.QueryValue(path, value, kClassesRoot);
    return value;
}

std::string SharedFolder(const Platform& platform, const Release& release, FrontPageFolder kind,
                         std::string_view programFolder, std::string_view language) {
    const std::string suffix(release.folderSuffix);
    if (kind == FrontPageFolder::kThemes) {
        std::string common;
        const bool found =
            GetRegString(platform, kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion",
                         "CommonFilesDir", common);
        return found ? JoinPath(common, {"Microsoft Shared", "Themes" + suffix}) : std::string();
    }
    if (kind == FrontPageFolder::kWebTemplates)
        return JoinPath(programFolder, {"Templates", language, "Webs" + suffix});
    if (kind == FrontPageFolder::kPageTemplates)
        return JoinPath(programFolder, {"Templates", language, "Pages" + suffix});
    return {};
}

std::string UserFolder(const Platform& platform, const Release& release, FrontPageFolder kind) {
    std::string appData;
    if (!GetRegString(platform, kCurrentUser, kShellFolders, "AppData", appData)) return {};
    const std::string base = JoinPath(appData, {"Microsoft"});
    if (kind == FrontPageFolder::kThemes) {
        std::string themes;
        GetRegString(
            platform, kCurrentUser,
            "Software\\Microsoft\\Office\\" + std::string(release.office) + "\\Common\\General",
            "Themes", themes);
        return themes.empty() ? std::string() : JoinPath(base, {themes});
    }
    if (kind == FrontPageFolder::kWebTemplates) return JoinPath(base, {"FrontPage", "Webs"});
    if (kind == FrontPageFolder::kPageTemplates) return JoinPath(base, {"FrontPage", "Pages"});
    return {};
}

}  // namespace

std::string GetFrontPageFolder(const Platform& platform, std::string_view version,
                               FrontPageFolder kind, std::string_view language, bool shared) {
    const std::string programFolder = GetFrontPageProgramFolder(platform, version);
    if (programFolder.empty()) return {};
    if (kind == FrontPageFolder::kProgram) return programFolder;
    if (kind == FrontPageFolder::kBots) return JoinPath(programFolder, {"Bots"});
    const Release* release = FindRelease(version);
    if (release == nullptr) return {};
    return shared ? SharedFolder(platform, *release, kind, programFolder, language)
                  : UserFolder(platform, *release, kind);
}

std::string GetFrontPageProgramFolder(const Platform& platform, std::string_view version) {
    const std::string classId = ClassValue(platform, RegisteredExplorerProgId(version) + "\\CLSID");
    if (classId.empty()) return {};
    const std::string server = ClassValue(platform, "CLSID\\" + classId + "\\LocalServer32");
    const auto separator = server.rfind('\\');
    return separator == std::string::npos ? server : server.substr(0, separator + 1);
}

std::string GetCachePath(const Platform& platform, std::string_view version) {
    return version.starts_with("6.") ? ShellFolder(platform, "Cache") : GetTempPath(platform);
}

std::string GetTempPath(const Platform& platform) {
    std::string folder = platform.environment.Variable("TMP");
    if (folder.empty()) folder = platform.environment.Variable("TEMP");
    if (folder.empty()) folder = ShellFolder(platform, "desktop");
    if (folder.empty()) folder = platform.environment.ModuleFolder();
    return WithSeparator(folder);
}

std::string GetOSInfo(const Platform& platform) {
    const OsVersion os = platform.environment.Os();
    const std::string number = std::to_string(os.major) + '.' + std::to_string(os.minor);
    std::string info = os.description;
    if (os.platformId == kWindowsNtPlatform) {
        info = (os.major < 5 ? "WinNT ver. " : "Win2K ver. ") + number +
               " Build: " + std::to_string(os.build) + ' ' + os.servicePack;
    } else if (os.platformId == kWindows9xPlatform) {
        // The upper half of the build number repeats the version.
        info = (os.minor != 0 ? "Win98 ver. " : "Win95 ver. ") + number + ' ' +
               std::to_string(os.build & 0xFFFF) + ' ' + os.servicePack;
    }
    TrimAtNul(info, true);
    return info;
}

std::string GetFrontPageInfo(const Program& program) {
    const std::shared_ptr<Application>& application = program.component.application;
    const auto languages = application ? application->Languages() : nullptr;
    if (languages == nullptr)
        throw RunTimeError(ErrorNumber::kObjectNotSet, "FrontPage's object is not set");
    std::string ids;
    for (const LanguageUse use : {LanguageUse::kExecutionMode, LanguageUse::kUserInterface,
                                  LanguageUse::kPreviousUserInterface, LanguageUse::kInstall})
        ids += (ids.empty() ? "" : ",") + std::to_string(languages->LanguageId(use));
    return "FP ver: " + application->Version() + " Lang(exe,UI,UIPrev,Inst): " + ids;
}

std::string GetVersionText(const Platform& platform, bool full) {
    const ComponentVersion version = platform.environment.Version();
    char minor[16];
    std::snprintf(minor, sizeof minor, "%02d", version.minor);
    const std::string text = std::to_string(version.major) + '.' + minor;
    return full ? text + '.' + std::to_string(version.revision) + ' ' + version.comments : text;
}

std::string ExplorerProgId(std::string_view version) {
    return "FrontPage.Explorer." + std::string(version);
}

std::string EditorProgId(std::string_view version) {
    return "FrontPage.Editor." + std::string(version);
}

}  // namespace morpho
