#pragma once

#include "desktop/desktop_platform.h"
#include "shared/component.h"

namespace morpho {

// What the editors' windows of one run stand on. All that is handed in must outlive it.
struct EditorDesktop {
    EditorDesktop(DesktopSystem& onSystem, Toolkit& withToolkit, const Resources& resources,
                  Clipboard& clipboard, const std::string& hostVersion = "6.0")
        : system(onSystem),
          toolkit(withToolkit),
          desktop(DesktopUse::kWindows, system, system.Folders(), toolkit, resources, clipboard,
                  hostVersion) {}

    DesktopSystem& system;
    Toolkit& toolkit;
    DesktopPlatform desktop;
    Component component{};
    Program program{desktop.Parts(), component};
};

}  // namespace morpho
