#include "program/qt_screen.h"

#include "desktop/image_command.h"
#include "desktop/theme_command.h"
#include "forms/form.h"
#include "program/qt_desktop.h"
#include "program/web_command.h"

namespace morpho {

void QtScreen::ShowWeb(const WebRequest& request) {
    QtDesktop here(system_, request.hostVersion);
    ShowWebWindow(request, here);
}

void QtScreen::ShowTheme(const ThemeRequest& request) {
    QtDesktop here(system_);
    ShowThemeWindow(request, here.editors);
}

void QtScreen::ShowImage(const ImageRequest& request) {
    QtDesktop here(system_);
    ShowImageWindow(request, here.editors);
}

void QtScreen::Draw(Form& form, const std::filesystem::path& picture) {
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtProgram qt;
    const DiskFileSystem pages;
    QtToolkit toolkit(pages, {}, {FindOnDisk, ToWindowsPath});
    bool drawn = false;
    toolkit.WhenFormStands([&](Form& standing) {
        drawn = toolkit.SavePicture(standing, picture.string());
        standing.Hide();
    });
    form.ShowModalOn(toolkit);
    if (!drawn) {
        throw Refusal("The picture " + picture.string() + " cannot be written.");
    }
}

}  // namespace morpho
