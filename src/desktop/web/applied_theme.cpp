#include "desktop/web/applied_theme.h"

#include <map>
#include <set>

#include "desktop/disk/disk_path.h"
#include "desktop/web/page_theme.h"
#include "desktop/web/theme_addresses.h"
#include "desktop/web/theme_of_web.h"
#include "desktop/web/theme_unpacking.h"
#include "desktop/web/web_text.h"
#include "platform/ignoring_case.h"
#include "platform/run_time_error.h"

namespace morpho {

namespace {

void ApplyToPage(const WebSession& web, const DiskFolder& folder, const std::string& name,
                 const std::string& theme) {
    const auto page = PageWithTheme(ReadWebFile(folder, name), theme);
    if (page) web.writer->ReplaceFile(folder.PathOf(name), *page);
}

// What a program that died left in the themes' folders.
void CleanThemes(const WebSession& web) {
    const auto themes = FindFolderInWeb(web, {"_themes"});
    if (!themes) return;
    for (const DiskEntry& entry : themes->Entries()) {
        if (entry.kind == DiskKind::kFolder) RemoveAbandoned(web, themes->Subfolder(entry.name));
    }
}

// The names of the files in each theme's folder, in lower case, listed when first asked for.
class ThemeFiles {
  public:
    explicit ThemeFiles(const WebSession& web) : web_(web) {}

    bool Has(const std::string& theme, const std::string& file) {
        const std::string key = Lowered(theme);
        const auto known = files_.find(key);
        return (known == files_.end() ? Listed(theme, key) : known->second).contains(Lowered(file));
    }

  private:
    const std::set<std::string>& Listed(const std::string& theme, const std::string& key) {
        std::set<std::string>& files = files_[key];
        const auto names = NamesInWeb(web_, "_themes/" + theme);
        const auto folder = names ? FindFolderInWeb(web_, *names) : std::nullopt;
        if (!folder) return files;
        for (const DiskEntry& entry : folder->Entries())
            files.insert(Lowered(NameFromDisk(entry.name)));
        return files;
    }

    const WebSession& web_;
    std::map<std::string, std::set<std::string>> files_;
};

}  // namespace

void ApplyThemeToWeb(WebSession& web, const std::string& name) {
    web.reports.clear();
    CleanThemes(web);
    const std::string theme = PutThemeIntoWeb(web, name);
    std::set<std::string> cleaned;
    VisitPages(web, [&](const DiskFolder& folder, const std::string& url, const std::string& page) {
        if (cleaned.insert(url).second) RemoveAbandoned(web, folder);
        try {
            ApplyToPage(web, folder, page, theme);
        } catch (const RunTimeError& error) {
            web.Report("The page \"" + url + NameFromDisk(page) +
                       "\" keeps its theme: " + error.what());
        }
    });
}

void LogBrokenThemeAddresses(WebSession& web) {
    ThemeFiles files(web);
    VisitPages(web, [&](const DiskFolder& folder, const std::string& url, const std::string& name) {
        try {
            const PageText page(ReadWebFile(folder, name));
            for (const ThemeAddress& address : ThemeAddresses(page.Text())) {
                if (address.file.empty() || files.Has(address.theme, address.file)) continue;
                web.Log("Broken hyperlink in \"" + url + NameFromDisk(name) + "\": _themes/" +
                        address.theme + "/" + address.file);
            }
        } catch (const RunTimeError& error) {
            web.Log(error.what());
        }
    });
}

}  // namespace morpho
