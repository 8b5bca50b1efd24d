#include "desktop/desktop_platform.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <filesystem>

#include "desktop/abandoned_files.h"
#include "desktop/path_text.h"
#include "text/digest.h"
#include "web_host/machine_description.h"

namespace morpho {

namespace {

// With the hash behind it, far less than the 255 bytes of a folder's name.
constexpr std::size_t kLongestNameOfWeb = 100;

constexpr int kVersionMajor = MORPHO_VERSION_MAJOR;
constexpr int kVersionMinor = MORPHO_VERSION_MINOR;
constexpr int kVersionRevision = MORPHO_VERSION_REVISION;

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
std::string NameOfWeb(const DesktopSystem& system, const std::filesystem::path& web) {
    std::error_code error;
    const std::filesystem::path path = system.RealPath(web, error);
    char digits[24];
    std::snprintf(digits, sizeof digits, "-%016" PRIx64, Fnv1a(TextOf(error ? web : path)));
    const std::string name = TextOf(web.filename());
    std::size_t length = std::min(name.size(), kLongestNameOfWeb);
    while (length < name.size() && (name[length] & 0xC0) == 0x80)
        --length;  // no character is cut
    return name.substr(0, length) + digits;
}

std::unique_ptr<MemoryRegistry> MakeRegistry(DesktopUse use, const DesktopSystem& system,
                                             const ProgramFolders& folders,
                                             const RegistryData& machine) {
    if (use == DesktopUse::kBatch)
        return std::make_unique<MemoryRegistry>(machine, BatchSettings());
    // Where it cannot be made, there are no logs; the editors run without.
    std::error_code ignored;
    std::filesystem::create_directories(folders.appData, ignored);
    return system.MakeRegistry(folders, machine);
}

}  // namespace

DesktopPlatform::DesktopPlatform(DesktopUse use, DesktopSystem& system,
                                 const ProgramFolders& folders, Toolkit& toolkit,
                                 const Resources& resources, Clipboard& clipboard,
                                 const std::string& hostVersion)
    : system_(system),
      workFolder_(system.MakeWorkFolder(folders.cache)),
      folders_(folders),
      hostVersion_(hostVersion),
      registry_(MakeRegistry(use, system, folders, DescribeMachine(Machine(), hostVersion))),
      files_(system.MakeFiles(workFolder_->Path())),
      environment_(
          system.MakeEnvironment({"Morpho", kVersionMajor, kVersionMinor, kVersionRevision, ""},
                                 workFolder_->Temporary())),
      colorizers_(system),
      frontPage_(std::make_shared<DiskApplication>(
          system.GetDisk(), *files_,
          system.PathInside(HasCache(hostVersion) ? workFolder_->Cache()
                                                  : workFolder_->Temporary()),
          HostOptions{hostVersion, &clipboard})),
      platform_{*registry_,        *files_,           system.GetCodePage(),
                system.GetShell(), system.GetClock(), *environment_,
                resources,         colorizers_,       toolkit,
                automation_,       clipboard} {}

MachineFolders DesktopPlatform::Machine() const {
    return {.cache = system_.PathInside(workFolder_->Cache()),
            .appData = system_.PathInside(folders_.appData),
            .desktop = system_.PathInside(folders_.desktop),
            .commonFiles = system_.PathInside(folders_.data / "CommonFiles"),
            .program = system_.PathInside(system_.FolderOfProgram())};
}

std::filesystem::path DesktopPlatform::DataOf(const std::filesystem::path& web) const {
    return folders_.data / "webs" / PathOf(NameOfWeb(system_, web));
}

void DesktopPlatform::OpenForReading(const std::filesystem::path& folder,
                                     const std::optional<std::string>& onlyTheme) {
    ThemeStores stores;
    stores.saves = system_.PathInside(DataOf(folder) / "save");
    frontPage_->Open(system_.PathInside(folder), onlyTheme, stores);
}

void DesktopPlatform::OpenForSaving(const std::filesystem::path& folder,
                                    const std::optional<std::string>& onlyTheme) {
    MachineFolders machine = Machine();
    const std::filesystem::path data = DataOf(folder);
    machine.commonFiles = system_.PathInside(data);
    const std::filesystem::path microsoft = folders_.appData / "Microsoft";
    RemoveAbandonedFiles(system_.GetDisk(), system_.PathInside(folders_.data));
    // Where it cannot be made, saving a theme fails and says so.
    std::error_code ignored;
    std::filesystem::create_directories(microsoft, ignored);
    const char* const installed = HasCache(hostVersion_) ? "Themes11" : "Themes";
    frontPage_->Open(system_.PathInside(folder), onlyTheme,
                     {system_.PathInside(microsoft / "Themes"),
                      system_.PathInside(data / "Microsoft Shared" / installed),
                      system_.PathInside(data / "save")});
    registry_->DescribeMachine(DescribeMachine(machine, hostVersion_));
}

}  // namespace morpho
