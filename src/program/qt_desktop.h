#pragma once

#include "linux/disk_path.h"
#include "program/desktop_platform.h"
#include "program/qt_program.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_toolkit.h"
#include "resources/embedded_resources.h"
#include "resources/resource_ids.h"
#include "shared/component.h"
#include "shared/log.h"

namespace morpho {

// What the windows of one run stand on: Qt, and the surroundings of the editors.
struct QtDesktop {
    explicit QtDesktop(const std::string& hostVersion = "6.0")
        : desktop(DesktopUse::kWindows, FindUserFolders(EnvironmentVariable), toolkit, resources,
                  clipboard, hostVersion) {
        desktop.FrontPage().SetLog([this](std::string_view line) { WriteLog(program, line); });
    }

    QtProgram qt;
    DiskFileSystem pages;
    EmbeddedResources resources;
    QtToolkit toolkit{
        pages, resources.Bytes(kIconResource, kApplicationIcon128), {FindOnDisk, ToWindowsPath}};
    QtClipboard clipboard;
    DesktopPlatform desktop;
    Component component{};
    Program program{desktop.Parts(), component};
};

}  // namespace morpho
