#include "web_host/disk_web.h"

#include <algorithm>

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"
#include "web_host/applied_theme.h"
#include "web_host/disk_web_folder.h"
#include "web_host/disk_web_window.h"
#include "web_host/theme_of_web.h"

namespace morpho {

namespace {

// A property in the host's notes, lines "key:TYPE|value" where TYPE is two letters.
std::optional<std::string> NotedProperty(std::string_view notes, std::string_view key) {
    while (!notes.empty()) {
        const std::string_view line = notes.substr(0, notes.find('\n'));
        notes.remove_prefix(std::min(line.size() + 1, notes.size()));
        const std::size_t colon = line.find(':');
        const std::size_t bar = line.find('|', colon == line.npos ? line.size() : colon);
        if (bar == line.npos || !EqualIgnoringCase(line.substr(0, colon), key)) continue;
        std::string_view value = line.substr(bar + 1);
        if (value.ends_with('\r')) value.remove_suffix(1);
        return TextOfUnknownCoding(value);
    }
    return {};
}

}  // namespace

int DiskWeb::ThemeCount() const {
    return static_cast<int>(web_->opened.themes.size());
}

Theme DiskWeb::ThemeAt(int index) const {
    if (index < 0 || index >= ThemeCount())
        throw RunTimeError(ErrorNumber::kAutomation, "The web has no such theme.");
    return web_->opened.themes[static_cast<std::size_t>(index)];
}

std::string DiskWeb::ThemeProperties(int which) const {
    if (which != kThemeNameProperty)
        throw RunTimeError(ErrorNumber::kAutomation, "Only the theme's name can be asked for.");
    std::string name = ThemeOfWeb(web_->Root());
    for (const Theme& theme : web_->opened.themes) {
        if (EqualIgnoringCase(theme.name, name)) return theme.name;
    }
    return name;
}

std::unique_ptr<WebWindow> DiskWeb::ActiveWebWindow() {
    return std::make_unique<DiskWebWindow>();
}

std::unique_ptr<WebFolder> DiskWeb::RootFolder() {
    return LocateWebFolder(web_, "");
}

std::unique_ptr<WebFolder> DiskWeb::LocateFolder(std::string_view url) {
    return LocateWebFolder(web_, url);
}

std::optional<std::string> DiskWeb::Property(std::string_view key) const {
    const auto folder = FindFolderInWeb(*web_, {"_vti_pvt"});
    const auto notes = folder ? folder->Find("service.cnf") : std::nullopt;
    if (!notes) return {};
    return NotedProperty(ReadWebFile(*folder, notes->name), key);
}

void DiskWeb::ApplyTheme(std::string_view themeName) {
    ApplyThemeToWeb(*web_, std::string(themeName));
    RefreshThemes(*web_);
    if (reporter_ && !web_->reports.empty()) reporter_(web_->reports);
}

void DiskWeb::Refresh() {
    web_->writer->Flush();
    web_->changeNote.Release();
    RefreshThemes(*web_);
}

void DiskWeb::RecalcHyperlinks() {
    LogBrokenThemeAddresses(*web_);
}

}  // namespace morpho
