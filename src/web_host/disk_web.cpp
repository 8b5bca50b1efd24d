#include "web_host/disk_web.h"

#include <algorithm>

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"
#include "web_host/disk_web_folder.h"
#include "web_host/disk_web_window.h"
#include "web_host/limits.h"
#include "web_host/page_update.h"
#include "web_host/refusal.h"
#include "web_host/theme_of_web.h"
#include "web_host/web_save_transaction.h"

namespace morpho {

namespace {

// A property in the host's settings, lines "key:TYPE|value" where TYPE is two letters.
std::optional<std::string> PropertyIn(std::string_view settings, std::string_view key) {
    while (!settings.empty()) {
        const std::string_view line = settings.substr(0, settings.find('\n'));
        settings.remove_prefix(std::min(line.size() + 1, settings.size()));
        const std::size_t colon = line.find(':');
        const std::size_t bar = line.find('|', colon == line.npos ? line.size() : colon);
        if (bar == line.npos || !EqualIgnoringAsciiCase(line.substr(0, colon), key)) continue;
        std::string_view value = line.substr(bar + 1);
        if (value.ends_with('\r')) value.remove_suffix(1);
        return TextOfUnknownCoding(value);
    }
    return {};
}

}  // namespace

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
    const auto folder = web_->Files().FindFolder({"_vti_pvt"});
    const auto settings = folder ? folder->Find("service.cnf") : std::nullopt;
    if (!settings) return {};
    return PropertyIn(ReadWholeFile(*folder, settings->name, kMaxFileBytes), key);
}

void DiskWeb::ApplyTheme(std::string_view themeName) {
    const std::string name(themeName);
    if (web_->Transaction()) return web_->Transaction()->ApplyTheme(name);
    WebSaveTransaction change(*web_, name, WebSaveTransaction::Purpose::kApply);
    change.ApplyTheme(name);
    change.Commit();
}

void DiskWeb::Refresh() {
    if (web_->Transaction()) return web_->Transaction()->RefreshAtCommit();
    web_->RefreshThemes();
}

void DiskWeb::RecalcHyperlinks() {
    if (web_->Transaction()) return web_->Transaction()->RecalcAtCommit();
    const auto log = [this](const std::string& line) { web_->Reports().WriteLog(line); };
    PageUpdate pages(web_->TheDisk(), web_->Files(), {}, {}, log);
    pages.Run();
    for (const std::string& line : pages.BrokenAddresses())
        log(line);
}

}  // namespace morpho
