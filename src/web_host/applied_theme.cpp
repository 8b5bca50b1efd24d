#include "web_host/applied_theme.h"

#include <map>
#include <set>

#include "formats/page_theme.h"
#include "formats/theme_addresses.h"
#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "linux/disk_path.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/theme_of_web.h"
#include "web_host/theme_unpacking.h"

namespace morpho {

namespace {

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

// The pages of a web as they get another theme. They are written some at a time.
class PageUpdate {
  public:
    PageUpdate(WebSession& web, const std::string& theme) : web_(web), theme_(theme), files_(web) {}

    // `url` is the page's address in the web.
    void Take(const DiskFolder& folder, const std::string& name, const std::string& url) {
        try {
            const std::string bytes = ReadWebFile(folder, name);
            auto page = PageWithTheme(
                bytes, theme_, [this](const ThemeAddress& address) { return Moves(address); });
            if (!page) return Look(bytes);
            changes_.push_back({folder.PathOf(name), std::move(*page)});
            urls_.push_back(url);
            bytes_ += changes_.back().bytes.size();
        } catch (const RunTimeError& error) {
            Report(url, error);
        }
        if (changes_.size() >= kMaxPages || bytes_ >= kMaxBytes) Write();
    }

    // Writes what is left, and tells what the person should know.
    void Finish() {
        Write();
        if (!web_.isShown)
            web_.Report("No page takes the theme \"" + theme_ +
                        "\": none takes the web's theme, or none could be written.");
        if (kept_.empty()) return;
        std::string files;
        for (const std::string& file : kept_)
            files += (files.empty() ? "" : ", ") + file;
        web_.Report("The theme \"" + theme_ +
                    "\" does not have all files that the pages use; their addresses still lead to "
                    "the earlier theme: " +
                    files + ".");
    }

  private:
    static constexpr std::size_t kMaxPages = 256;
    static constexpr std::size_t kMaxBytes = 16UL * 1024 * 1024;

    // An address stays where it would lead nowhere in the new theme.
    bool Moves(const ThemeAddress& address) {
        const bool stays =
            !files_.Has(theme_, address.file) && files_.Has(address.theme, address.file);
        if (stays) kept_.insert(address.file);
        return !stays;
    }

    // Looks whether the unchanged page has the theme already.
    void Look(const std::string& page) {
        if (web_.isShown) return;
        const auto theme = ThemeOfPage(PageText(page).Text());
        web_.isShown = theme && theme->ofWeb && EqualIgnoringCase(theme->name, theme_);
    }

    void Write() {
        web_.writer->ReplaceFiles(changes_);
        for (std::size_t i = 0; i < changes_.size(); ++i) {
            web_.isShown = web_.isShown || changes_[i].isDone;
            if (changes_[i].failure) Report(urls_[i], *changes_[i].failure);
        }
        changes_.clear();
        urls_.clear();
        bytes_ = 0;
    }

    void Report(const std::string& url, const RunTimeError& error) {
        web_.Report("The page \"" + url + "\" keeps its theme: " + error.what());
    }

    WebSession& web_;
    const std::string& theme_;
    ThemeFiles files_;
    std::set<std::string> kept_;  // files of the earlier theme that the new one does not have
    std::vector<FileChange> changes_;
    std::vector<std::string> urls_;  // of the changes
    std::size_t bytes_ = 0;          // in the changes
};

// Whether it goes well or not, the web's themes are whole when it ends.
struct NoteRelease {
    ThemeChangeNote& note;
    ~NoteRelease() { note.Release(); }
};

// What a program that died left in the themes' folders.
void CleanThemes(const WebSession& web) {
    const auto themes = FindFolderInWeb(web, {"_themes"});
    if (!themes) return;
    for (const DiskEntry& entry : themes->Entries()) {
        if (entry.kind == DiskKind::kFolder) RemoveAbandoned(web, themes->Subfolder(entry.name));
    }
}

}  // namespace

void ApplyThemeToWeb(WebSession& web, const std::string& name) {
    web.reports.clear();
    web.isShown = false;
    CleanThemes(web);
    const NoteRelease release{web.changeNote};
    const std::string theme = PutThemeIntoWeb(web, name);
    PageUpdate pages(web, theme);
    std::set<std::string> cleaned;
    VisitPages(web, [&](const DiskFolder& folder, const std::string& url, const std::string& page) {
        if (cleaned.insert(url).second) RemoveAbandoned(web, folder);
        pages.Take(folder, page, url + NameFromDisk(page));
    });
    pages.Finish();
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
