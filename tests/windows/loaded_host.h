#pragma once

#include "support/own_server.h"
#include "windows/add_ins.h"
#include "windows/front_page/host_world.h"
#include "windows_system/windows_clipboard.h"

namespace morpho::test {

// The played host on a computer on which both DLLs are registered.
class LoadedHost {
  public:
    explicit LoadedHost(const std::string& version = "6.0") : world_(version, &clipboard_) {}

    HostWorld& World() { return world_; }
    FrontPage& Host() { return world_.Host(); }
    const std::vector<std::wstring>& AddIns() const { return addIns_; }
    bool CanUnload() const { return morpho_.CanBeUnloaded() && colorizer_.CanBeUnloaded(); }
    // The command with this tag; null when there is none.
    std::shared_ptr<HostControl> Command(const std::string& tag) {
        const HostCommandBars& bars = world_.Application().HostBars();
        const auto inMenu = bars.MenuBar()->controls->Find({}, tag, true);
        return inMenu ? inMenu : bars.Pictures()->controls->Find({}, tag, true);
    }
    // The commands in the Format menu and on the toolbar, by tag.
    std::vector<std::string> Commands() {
        std::vector<std::string> tags;
        const HostCommandBars& bars = world_.Application().HostBars();
        for (const auto& control : bars.Menu(HostMenu::kFormat).All())
            tags.push_back(control->Tag());
        for (const auto& control : bars.Pictures()->controls->All())
            tags.push_back(control->Tag());
        return tags;
    }

  private:
    OwnServer colorizer_{L"Colorizer.dll",
                         {L"CLSID\\{2142EA3D-D6D1-4C75-996B-A6D999AFD65F}", L"Morpho.Colorizer"}};
    OwnServer morpho_{L"Morpho.dll",
                      {L"CLSID\\{8F2A4208-5493-4664-84D0-DB42C1443895}", L"Morpho.AddInTM",
                       L"CLSID\\{FC405CCE-89DC-4236-A96F-5B62FA828C4C}", L"Morpho.AddInIM"}};
    // The registry that the world brings does not have them.
    std::vector<std::wstring> addIns_ = AddInsToLoad();
    WindowsClipboard clipboard_;
    HostWorld world_;
};

}  // namespace morpho::test
