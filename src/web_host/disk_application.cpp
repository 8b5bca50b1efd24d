#include "web_host/disk_application.h"

#include "linux/disk_path.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/applied_theme.h"
#include "web_host/disk_web.h"
#include "web_host/theme_of_web.h"

namespace morpho {

namespace {

constexpr int kEnglish = 1033;

class DiskLanguageSettings : public LanguageSettings {
  public:
    int LanguageId(LanguageUse) const override { return kEnglish; }
};

// Removes what programs that died while they saved left among the user's own themes.
void CleanStore(const WebSession& web) {
    try {
        const DiskFolder store = DiskFolder::Open(web.stores.ofUser, true);
        RemoveAbandoned(web, store);
        for (const DiskEntry& entry : store.Entries()) {
            if (entry.kind == DiskKind::kFolder) RemoveAbandoned(web, store.Subfolder(entry.name));
        }
    } catch (const RunTimeError&) {
        // There is no such folder yet, or it cannot be read; saving will tell.
    }
}

void RemoveUnfinished(WebSession& web, const std::string& diskName) {
    const auto folder = FindFolderInWeb(web, {"_themes", diskName});
    const std::string theme = NameFromDisk(diskName);
    if (!folder || EqualIgnoringCase(ThemeOfWeb(web.Root()), theme)) return;
    web.writer->RemoveFolder(folder->Path());
    web.Report("What a program that was stopped had made of the theme \"" + theme +
               "\" has been removed.");
}

void CompleteApplying(WebSession& web, const std::string& diskName) {
    const std::string theme = NameFromDisk(diskName);
    ApplyThemeToWeb(web, theme);
    web.completedTheme = theme;
    web.Report("A program was stopped while it gave the web the theme \"" + theme +
               "\"; that has been completed.");
}

std::optional<ThemeChange> TakeOverNote(WebSession& web) {
    try {
        const auto themes = FindFolderInWeb(web, {"_themes"});
        return themes ? web.changeNote.TakeOver(themes->Path()) : std::nullopt;
    } catch (const RunTimeError&) {
        return {};  // opening the web tells what cannot be read
    }
}

// Puts right what a program that died while it changed the web's themes has left: a theme that it
// was making goes, one that it was applying is applied.
void PutRight(WebSession& web) {
    try {
        if (const auto change = TakeOverNote(web)) {
            const bool isMaking = change->kind == ThemeChange::Kind::kMaking;
            (isMaking ? RemoveUnfinished : CompleteApplying)(web, change->theme);
        }
    } catch (const RunTimeError& error) {
        web.Report(error.what());
    }
    web.changeNote.Release();
}

// Where nothing may be written, it is only told.
void TellUnfinished(WebSession& web) {
    if (const auto change = TakeOverNote(web))
        web.Report("A program was stopped while it changed the web's theme \"" +
                   NameFromDisk(change->theme) + "\"; the next save puts that right.");
    web.changeNote.Leave();
}

}  // namespace

DiskApplication::DiskApplication(const std::string& cacheFolder)
    : unpackFolder_(JoinDiskPath(cacheFolder, "FrontPageTempDir/mstheme")) {}

void DiskApplication::Open(const std::string& folder, const std::optional<std::string>& onlyTheme,
                           const ThemeStores& stores) {
    auto web = std::make_shared<WebSession>();
    web->unpackFolder = unpackFolder_;
    web->onlyTheme = onlyTheme;
    web->stores = stores;
    web->writer = writer_;
    web->log = log_;
    web->opened.folder = folder;
    (stores.forWeb.empty() ? TellUnfinished : PutRight)(*web);
    web->opened = OpenWebFolder(folder, {unpackFolder_, onlyTheme, stores.forWeb});
    web->opened.putRight = std::exchange(web->reports, {});
    if (!stores.ofUser.empty()) CleanStore(*web);
    web_ = std::move(web);
}

std::vector<std::string> DiskApplication::Reports() const {
    return web_ ? web_->reports : std::vector<std::string>();
}

void DiskApplication::SetLog(std::function<void(std::string_view)> log) {
    log_ = std::move(log);
    if (web_) web_->log = log_;
}

std::unique_ptr<Web> DiskApplication::ActiveWeb() {
    return web_ ? std::make_unique<DiskWeb>(web_, reporter_) : nullptr;
}

std::unique_ptr<LanguageSettings> DiskApplication::Languages() const {
    return std::make_unique<DiskLanguageSettings>();
}

}  // namespace morpho
