#include "web_host/disk_web.h"

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/disk_web_folder.h"
#include "web_host/disk_web_window.h"
#include "web_host/page_update.h"
#include "web_host/refusal.h"
#include "web_host/theme_of_web.h"
#include "web_host/web_save_transaction.h"
#include "web_host/web_settings.h"

namespace morpho {

int DiskWeb::ThemeCount() const {
    return static_cast<int>(web_->Themes().size());
}

Theme DiskWeb::ThemeAt(int index) const {
    if (index < 0 || index >= ThemeCount()) RefuseCall("The web has no such theme.");
    return web_->Themes()[static_cast<std::size_t>(index)];
}

std::string DiskWeb::ThemeProperties(int which) const {
    if (which != kThemeNameProperty) RefuseCall("Only the theme's name can be asked for.");
    std::string name = ThemeOfWeb(web_->Files().Root());
    for (const Theme& theme : web_->Themes()) {
        if (EqualIgnoringCase(theme.name, name)) return theme.name;
    }
    return name;
}

std::string DiskWeb::Title() const {
    try {
        const auto title = WebSetting(web_->Files(), "vti_title");
        if (title && !title->empty()) return *title;
    } catch (const RunTimeError& error) {
        web_->Reports().WriteLog(error.what());
    }
    const std::string url = web_->Files().Url();
    return url.substr(url.rfind('/') + 1);
}

std::unique_ptr<WebWindow> DiskWeb::ActiveWebWindow() {
    return std::make_unique<DiskWebWindow>();
}

std::unique_ptr<WebFolder> DiskWeb::RootFolder() {
    return LocateWebFolder(web_, files_, "");
}

std::unique_ptr<WebFolder> DiskWeb::LocateFolder(std::string_view url) {
    return LocateWebFolder(web_, files_, url);
}

std::optional<std::string> DiskWeb::Property(std::string_view key) const {
    return WebSetting(web_->Files(), key);
}

void DiskWeb::ApplyTheme(std::string_view themeName) {
    const std::string name(themeName);
    // Comparing and writing the theme's files takes a while, too, not only the pages.
    web_->Work().run([&] {
        if (web_->Transaction()) return web_->Transaction()->ApplyTheme(name);
        WebSaveTransaction change(*web_, name, WebSaveTransaction::Purpose::kApply);
        change.ApplyTheme(name);
        change.Commit();
    });
}

void DiskWeb::Refresh() {
    if (web_->Transaction()) return web_->Transaction()->RefreshAtCommit();
    web_->RefreshThemes();
}

void DiskWeb::RecalcHyperlinks() {
    if (web_->Transaction()) return web_->Transaction()->RecalcAtCommit();
    const auto log = [this](const std::string& line) { web_->Reports().WriteLog(line); };
    PageUpdate pages(web_->Files(), {}, {}, log);
    pages.SetProgress(web_->Work().advanced);
    web_->Work().run([&] { pages.Run(); });
    for (const std::string& line : pages.BrokenAddresses())
        log(line);
}

}  // namespace morpho
