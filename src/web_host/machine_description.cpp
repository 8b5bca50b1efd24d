#include "web_host/machine_description.h"

namespace morpho {

namespace {

constexpr std::string_view kShellFolders =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr std::string_view kWindowsVersion =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion";
constexpr std::string_view kExplorerClassId = "{6F0D3C52-8B1E-4D07-9A6E-51C2D7B84E13}";

// The release of the office suite that a release of the host belongs to.
std::string OfficeRelease(std::string_view hostVersion) {
    if (hostVersion.starts_with("4")) return "9.0";
    return hostVersion.starts_with("5") ? "10.0" : "11.0";
}

}  // namespace

RegistryData DescribeMachine(const MachineFolders& folders, std::string_view hostVersion) {
    RegistryData data;
    const auto setText = [&data](std::string_view key, const char* name, std::string text) {
        data.Set(key, {name, RegType::kString, std::move(text)});
    };
    setText(kShellFolders, "Cache", folders.cache);
    setText(kShellFolders, "AppData", folders.appData);
    setText(kShellFolders, "Desktop", folders.desktop);
    // The name of the user's themes folder below "Microsoft" in AppData.
    setText("HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\" + OfficeRelease(hostVersion) +
                "\\Common\\General",
            "Themes", "Themes");
    setText(kWindowsVersion, "CommonFilesDir", folders.commonFiles);
    const std::string classId(kExplorerClassId);
    setText("HKEY_CLASSES_ROOT\\FrontPage.Explorer." +
                std::string(hostVersion.substr(0, hostVersion.find('.'))) + ".0\\CLSID",
            "", classId);
    setText("HKEY_CLASSES_ROOT\\CLSID\\" + classId + "\\LocalServer32", "",
            folders.program + "\\morpho");
    return data;
}

}  // namespace morpho
