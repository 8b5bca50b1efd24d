#include "desktop/theme_command.h"

#include <algorithm>

#include "forms/form.h"
#include "text/ignoring_case.h"
#include "theme_editor/frm_theme_morpho.h"
#include "theme_editor/theme_product.h"

namespace morpho {

namespace {

void RequireTheme(const WebSession& web, const std::string& name) {
    const bool known =
        std::any_of(web.Themes().begin(), web.Themes().end(),
                    [&](const Theme& theme) { return EqualIgnoringCase(theme.name, name); });
    if (!known) throw Refusal("This web has no theme named \"" + name + "\".");
}

// Before the window is shown, as if the person had picked it first of all.
void SelectTheme(frmThemeMorpho& window, const std::string& name) {
    window.Load();
    const int index = window.cmbThemeName.FindExact(name);
    if (index == kNoEntry) {
        throw Refusal("This web has no theme named \"" + name + "\" that can be opened.");
    }
    window.cmbThemeLabel.UserSelect(index);
}

// Tells what happened to single pages of the web, the first of them by name.
void TellReports(Toolkit& toolkit, const std::vector<std::string>& reports) {
    constexpr std::size_t kMaxTold = 8;  // a message of more lines may not fit on a screen
    if (reports.empty()) return;
    std::string text;
    for (std::size_t i = 0; i < std::min(reports.size(), kMaxTold); ++i)
        text += (i == 0 ? "" : "\r\n") + reports[i];
    if (reports.size() > kMaxTold)
        text += "\r\nand " + std::to_string(reports.size() - kMaxTold) + " more.";
    toolkit.ShowMessage(nullptr, text, kOkOnly | kInformationIcon, kThemeProduct);
}

}  // namespace

void ShowThemeWindow(const ThemeRequest& request, EditorDesktop& here) {
    DesktopPlatform& desktop = here.desktop;
    desktop.OpenForSaving(here.system.AbsolutePath(request.web));
    if (!request.theme.empty()) RequireTheme(*desktop.FrontPage().Session(), request.theme);
    here.component.application = desktop.SharedFrontPage();
    TellReports(here.toolkit, desktop.FrontPage().Session()->Repairs());
    desktop.FrontPage().SetReporter(
        [&](const std::vector<std::string>& reports) { TellReports(here.toolkit, reports); });
    frmThemeMorpho window(here.program);
    if (!request.theme.empty()) SelectTheme(window, request.theme);
    window.ShowModal();
}

}  // namespace morpho
