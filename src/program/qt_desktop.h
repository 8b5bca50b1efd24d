#pragma once

#include "desktop/editor_desktop.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "program/qt_program.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_toolkit.h"
#include "resources/embedded_resources.h"
#include "resources/resource_ids.h"
#include "shared/log.h"

namespace morpho {

// What the windows of one run stand on: Qt, and the surroundings of the editors.
struct QtDesktop {
    explicit QtDesktop(DesktopSystem& system, const std::string& hostVersion = "6.0")
        : editors(system, toolkit, resources, clipboard, hostVersion) {
        editors.desktop.FrontPage().SetLog(
            [this](std::string_view line) { WriteLog(editors.program, line); });
    }

    QtProgram qt;
    DiskFileSystem pages;
    EmbeddedResources resources;
    QtToolkit toolkit{
        pages, resources.Bytes(kIconResource, kApplicationIcon128), {FindOnDisk, ToWindowsPath}};
    QtClipboard clipboard;
    EditorDesktop editors;
};

}  // namespace morpho
