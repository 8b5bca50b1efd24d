#include "desktop/web/disk_web.h"

#include "desktop/disk/disk_folder.h"
#include "desktop/web/disk_page.h"
#include "desktop/web/theme_of_web.h"
#include "platform/ignoring_case.h"
#include "platform/run_time_error.h"

namespace morpho {

int DiskWeb::ThemeCount() const {
    return static_cast<int>(web_->themes.size());
}

Theme DiskWeb::ThemeAt(int index) const {
    if (index < 0 || index >= ThemeCount())
        throw RunTimeError(ErrorNumber::kAutomation, "The web has no such theme.");
    return web_->themes[static_cast<std::size_t>(index)];
}

std::string DiskWeb::ThemeProperties(int which) const {
    if (which != kThemeNameProperty)
        throw RunTimeError(ErrorNumber::kAutomation, "Only the theme's name can be asked for.");
    std::string name = ThemeOfWeb(DiskFolder::Open(web_->folder, true));
    for (const Theme& theme : web_->themes) {
        if (EqualIgnoringCase(theme.name, name)) return theme.name;
    }
    return name;
}

std::unique_ptr<WebWindow> DiskWeb::ActiveWebWindow() {
    return std::make_unique<DiskWebWindow>();
}

}  // namespace morpho
