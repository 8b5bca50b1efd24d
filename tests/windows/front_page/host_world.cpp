#include "windows/front_page/host_world.h"

#include "windows_system/wide.h"

namespace morpho::test {

namespace {

const std::string kExplorerClass = "{6F0D3C52-8B1E-4D07-9A6E-51C2D7B84E13}";

// The machine, and the settings of a user who has seen the messages of the first start and wants no
// others at a connection.
RegistryData Described(const MachineFolders& folders, const std::string& version) {
    RegistryData data = DescribeMachine(folders, version);
    for (const std::string application : {"Theme Morpho", "Image Morpho"}) {
        const std::string key =
            "HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\" + application + "\\Window";
        for (const char* name : {"Splash", "QuickReference", "NoTMAddinError", "NoIMAddinError"})
            data.Set(key, {name, RegType::kString, "0"});
    }
    return data;
}

}  // namespace

HostWorld::HostWorld(const std::string& version, const Clipboard* clipboard)
    : application_(disk_, files_, folder_ / (version.starts_with("6") ? "Cache" : "Temp"),
                   {version, clipboard}),
      registry_(Described(Machine(), version)) {
    OleInitialize(nullptr);
    for (const char* name : {"Cache", "Temp", "Desktop", "AppData/Microsoft", "Program"})
        std::filesystem::create_directories(folder_.At(name));
    std::filesystem::copy(std::filesystem::path(MORPHO_SOURCE_DIR) / "samples/larkfell",
                          folder_.At("web"), std::filesystem::copy_options::recursive);
    const std::string themes = version.starts_with("6") ? "Themes11" : "Themes";
    application_.Open(folder_ / "web", {},
                      {folder_ / "AppData\\Microsoft\\Themes",
                       folder_ / ("Common\\Microsoft Shared\\" + themes), folder_ / "save"});
    explorer_.emplace(host_, kExplorerClass);
    registry_.Use(true);
}

HostWorld::~HostWorld() {
    registry_.Use(false);
    explorer_.reset();
    OleUninitialize();
}

MachineFolders HostWorld::Machine() const {
    return {.cache = folder_ / "Cache",
            .appData = folder_ / "AppData",
            .desktop = folder_ / "Desktop",
            .commonFiles = folder_ / "Common",
            .program = folder_ / "Program"};
}

void HostWorld::Select(const WebPath& page, int picture) {
    application_.SetActivePage([=] { return ActivePage{.page = page, .picture = picture}; });
}

}  // namespace morpho::test
