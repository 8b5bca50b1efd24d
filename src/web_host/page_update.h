#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "formats/theme_addresses.h"
#include "formats/theme_mark.h"
#include "platform/run_time_error.h"
#include "web_host/page_walk.h"
#include "web_host/theme_files.h"

namespace morpho {

// Gives a theme to the chosen pages of a web, in one walk, and finds the addresses that lead to
// files which the web's themes do not have. Each page is replaced as a whole and flushed; one that
// cannot be written keeps its theme and is reported, and the rest goes on.
class PageUpdate {
  public:
    using Report = std::function<void(const std::string& sentence)>;

    // Without a theme no page is changed.
    PageUpdate(const WebFiles& web, std::optional<std::string> theme, PageChoice choice,
               Report report)
        : web_(web),
          theme_(std::move(theme)),
          choice_(std::move(choice)),
          report_(std::move(report)),
          files_(web) {}

    // Tells how many of the pages found so far are done.
    void SetProgress(std::function<void(std::size_t done, std::size_t found)> advanced) {
        advanced_ = std::move(advanced);
    }

    // Walks the pages. Temporary files that this program, now dead, left beside them are removed.
    void Run(std::optional<std::uint64_t> deadProgram = {});

    // Whether a page takes the theme now.
    bool IsThemeShown() const { return isShown_; }
    // How many pages keep a theme that they name themselves, by its name.
    const std::map<std::string, int>& KeptThemes() const { return keptThemes_; }
    void ReportKeptThemes() const;
    // What to log: `Broken hyperlink in "index.htm": _themes/blends/x.gif`.
    const std::vector<std::string>& BrokenAddresses() const { return broken_; }

  private:
    struct WebPage {
        const std::shared_ptr<Folder>& folder;
        const std::string& name;  // of its file
        std::string url;          // relative to the web, "gallery/index.htm"
    };
    struct Change {
        std::shared_ptr<Folder> folder;
        std::string name;
        std::string url;
        std::string bytes;
        std::optional<RunTimeError> failure = {};
    };

    void VisitFolder(const std::shared_ptr<Folder>& folder, const std::string& url,
                     const std::vector<FolderEntry>& entries);
    void Visit(const WebPage& page);
    void Advance(std::size_t pages);
    std::optional<std::string> NewFile(const ThemeAddress& address);
    void LookAtUnchanged(const std::string& text);
    void CountKept(const std::string& theme);
    void NoteBroken(const std::string& url, const std::string& text);
    void Write();
    void ReportKept(const std::string& url, const RunTimeError& error);
    void ReportSummary();
    static void Sweep(Folder& folder, const std::vector<FolderEntry>& entries,
                      std::uint64_t program);

    const WebFiles& web_;
    std::optional<std::string> theme_;
    PageChoice choice_;
    Report report_;
    std::function<void(std::size_t done, std::size_t found)> advanced_;
    ThemeFiles files_;
    std::set<std::string> kept_;  // files of the earlier theme that the new one does not have
    std::vector<Change> changes_;
    std::size_t changedBytes_ = 0;  // in changes_
    std::map<std::string, int> keptThemes_;
    std::size_t pagesDone_ = 0;   // written, or left as they are
    std::size_t pagesFound_ = 0;  // in the folders visited so far
    bool isShown_ = false;
    std::vector<std::string> broken_;
};

}  // namespace morpho
