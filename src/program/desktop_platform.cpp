#include "program/desktop_platform.h"

#include <cinttypes>
#include <cstdio>
#include <filesystem>

#include "linux/abandoned_files.h"
#include "linux/disk_path.h"
#include "linux/registry_file.h"
#include "text/digest.h"
#include "web_host/machine_description.h"

namespace morpho {

namespace {

constexpr int kVersionMajor = MORPHO_VERSION_MAJOR;
constexpr int kVersionMinor = MORPHO_VERSION_MINOR;
constexpr int kVersionRevision = MORPHO_VERSION_REVISION;

std::string DesktopFolder(const UserFolders& folders) {
    const std::string desktop = JoinDiskPath(folders.home, "Desktop");
    std::error_code ignored;
    return std::filesystem::is_directory(desktop, ignored) ? desktop : folders.home;
}

// The settings of a user who has answered the messages of the first start.
RegistryData BatchSettings() {
    RegistryData settings;
    for (const std::string application : {"Theme Morpho", "Image Morpho"}) {
        const std::string key =
            "HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\" + application + "\\Window";
        for (const char* name : {"Splash", "QuickReference"})
            settings.Set(key, {name, RegType::kString, "0"});
    }
    return settings;
}

// Releases before 6 keep their copies of themes in the temporary folder.
bool HasCache(const std::string& hostVersion) {
    return hostVersion.starts_with("6");
}

// A folder name that is always the same for the web at this path: its own name, for people, and the
// path's 64-bit FNV-1a hash.
std::string NameOfWeb(const std::string& webFolder) {
    std::error_code error;
    const std::string path = std::filesystem::canonical(webFolder, error).string();
    char digits[24];
    std::snprintf(digits, sizeof digits, "-%016" PRIx64, Fnv1a(error ? webFolder : path));
    return std::string(LastName(path)).substr(0, 100) + digits;
}

std::unique_ptr<MemoryRegistry> MakeRegistry(DesktopUse use, const UserFolders& folders,
                                             const RegistryData& machine) {
    if (use == DesktopUse::kBatch)
        return std::make_unique<MemoryRegistry>(machine, BatchSettings());
    // Where it cannot be made, there are no logs; the editors run without.
    std::error_code ignored;
    std::filesystem::create_directories(JoinDiskPath(folders.data, "AppData"), ignored);
    return std::make_unique<RegistryFile>(JoinDiskPath(folders.data, "registry.reg"), machine);
}

// Beside an installed program, and in the sources of one that was only built.
std::vector<std::string> HelpPages() {
    const std::string program = ProgramFolder();
    return {program + "/../share/doc/morpho/help/index.html",
            program + "/../../../docs/help/index.html"};
}

}  // namespace

DesktopPlatform::DesktopPlatform(DesktopUse use, const UserFolders& folders, Toolkit& toolkit,
                                 const Resources& resources, Clipboard& clipboard,
                                 const std::string& hostVersion)
    : workFolder_(folders.cache),
      folders_(folders),
      hostVersion_(hostVersion),
      registry_(MakeRegistry(use, folders, DescribeMachine(Machine(), hostVersion))),
      files_(workFolder_.Path()),
      shell_(HelpPages(), StartDetached),
      environment_({"Morpho", kVersionMajor, kVersionMinor, kVersionRevision, ""},
                   workFolder_.Temporary()),
      frontPage_(std::make_shared<DiskApplication>(
          disk_, files_,
          ToWindowsPath(HasCache(hostVersion) ? workFolder_.Cache() : workFolder_.Temporary()),
          HostOptions{hostVersion, &clipboard})),
      platform_{*registry_, files_,      codePage_, shell_,      clock_,   environment_,
                resources,  colorizers_, toolkit,   automation_, clipboard} {}

MachineFolders DesktopPlatform::Machine() const {
    return {.cache = ToWindowsPath(workFolder_.Cache()),
            .appData = ToWindowsPath(JoinDiskPath(folders_.data, "AppData")),
            .desktop = ToWindowsPath(DesktopFolder(folders_)),
            .commonFiles = ToWindowsPath(JoinDiskPath(folders_.data, "CommonFiles")),
            .program = ToWindowsPath(ProgramFolder())};
}

void DesktopPlatform::OpenForReading(const std::string& folder,
                                     const std::optional<std::string>& onlyTheme) {
    const std::string data = JoinDiskPath(folders_.data, "webs/" + NameOfWeb(folder));
    ThemeStores stores;
    stores.saves = ToWindowsPath(JoinDiskPath(data, "save"));
    frontPage_->Open(ToWindowsPath(folder), onlyTheme, stores);
}

void DesktopPlatform::OpenForSaving(const std::string& folder,
                                    const std::optional<std::string>& onlyTheme) {
    MachineFolders machine = Machine();
    const std::string data = JoinDiskPath(folders_.data, "webs/" + NameOfWeb(folder));
    machine.commonFiles = ToWindowsPath(data);
    const std::string microsoft = JoinDiskPath(folders_.data, "AppData/Microsoft");
    RemoveAbandonedFiles(folders_.data);
    // Where it cannot be made, saving a theme fails and says so.
    std::error_code ignored;
    std::filesystem::create_directories(microsoft, ignored);
    frontPage_->Open(
        ToWindowsPath(folder), onlyTheme,
        {ToWindowsPath(JoinDiskPath(microsoft, "Themes")),
         ToWindowsPath(JoinDiskPath(
             data, "Microsoft Shared/Themes" + std::string(HasCache(hostVersion_) ? "11" : ""))),
         ToWindowsPath(JoinDiskPath(data, "save"))});
    registry_->DescribeMachine(DescribeMachine(machine, hostVersion_));
}

}  // namespace morpho
