#include "windows_program/windows_screen.h"

#include "desktop/editor_desktop.h"
#include "desktop/image_command.h"
#include "desktop/path_text.h"
#include "desktop/request.h"
#include "desktop/theme_command.h"
#include "forms/form.h"
#include "resources/embedded_resources.h"
#include "windows_program/console.h"
#include "windows_program/folder_choice.h"
#include "windows_system/windows_clipboard.h"
#include "windows_system/windows_file_system.h"
#include "windows_toolkit/windows_toolkit.h"

namespace morpho {

namespace {

// What the windows of one run stand on.
struct WindowsEditors {
    WindowsEditors(DesktopSystem& system, const std::string& hostVersion = "6.0")
        : editors(system, toolkit, resources, clipboard, hostVersion) {
        CloseOwnConsole();
    }

    EmbeddedResources resources;
    WindowsToolkit toolkit;
    WindowsClipboard clipboard;
    EditorDesktop editors;
};

}  // namespace

void WindowsScreen::ShowWeb(const WebRequest& request) {
    WindowsEditors here(system_, request.hostVersion);
    const std::filesystem::path web = request.web.empty() ? ChooseWebFolder() : request.web;
    if (!web.empty()) ShowThemeWindow({web, ""}, here.editors);
}

void WindowsScreen::ShowTheme(const ThemeRequest& request) {
    WindowsEditors here(system_);
    ShowThemeWindow(request, here.editors);
}

void WindowsScreen::ShowImage(const ImageRequest& request) {
    WindowsEditors here(system_);
    ShowImageWindow(request, here.editors);
}

void WindowsScreen::Draw(Form& form, const std::filesystem::path& picture) {
    WindowsToolkit toolkit;
    std::string png;
    toolkit.WhenFormStands([&](Form& standing) {
        png = toolkit.PictureOf(standing);
        standing.Hide();
    });
    form.ShowModalOn(toolkit);
    if (png.empty()) throw Refusal("The window cannot be drawn: there is no screen.");
    try {
        WindowsFileSystem().WriteFile(system_.PathInside(system_.AbsolutePath(picture)), png);
    } catch (const RunTimeError&) {
        throw Refusal("The picture " + TextOf(picture) + " cannot be written.");
    }
}

}  // namespace morpho
