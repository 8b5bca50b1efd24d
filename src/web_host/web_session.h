#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "web_host/long_work.h"
#include "web_host/theme_stores.h"
#include "web_host/theme_unpacking.h"
#include "web_host/web_files.h"

namespace morpho {

class WebSaveTransaction;

// What is told about a web, a sentence each: to the caller who asks, and to the host's log.
class WebReports {
  public:
    using Log = std::function<void(std::string_view)>;
    using Reporter = std::function<void(const std::vector<std::string>&)>;

    void SetLog(Log log) { log_ = std::move(log); }
    // Gets the sentences whenever a save has ended.
    void SetReporter(Reporter reporter) { reporter_ = std::move(reporter); }
    void Deliver() const {
        if (reporter_) reporter_(sentences_);
    }
    void WriteLog(std::string_view line) const {
        if (log_) log_(line);
    }
    void Add(const std::string& sentence) {
        sentences_.push_back(sentence);
        WriteLog(sentence);
    }
    const std::vector<std::string>& Sentences() const { return sentences_; }
    // Hands the sentences over and has none left.
    std::vector<std::string> Take() { return std::exchange(sentences_, {}); }

  private:
    Log log_;
    Reporter reporter_;
    std::vector<std::string> sentences_;
};

// How a web is opened.
struct WebOptions {
    std::string path;                           // of its folder; a Windows path
    std::string unpackFolder;                   // the host's copies of themes; a Windows path
    std::optional<std::string> onlyTheme = {};  // see UnpackOptions
    ThemeStores stores = {};

    bool IsForSaving() const { return !stores.forWeb.empty(); }
};

// A web that is open, shared by the objects that show it.
class WebSession {
  public:
    // Opens the web, after repairing what a save that was killed left (see save_repair.h). Throws
    // RunTimeError when the folder cannot be read.
    WebSession(Disk& disk, WebOptions options, WebReports::Log log);
    ~WebSession();
    WebSession(const WebSession&) = delete;
    WebSession& operator=(const WebSession&) = delete;

    Disk& TheDisk() const { return disk_; }
    WebFiles& Files() { return files_; }
    const WebFiles& Files() const { return files_; }
    const WebOptions& Options() const { return options_; }
    WebReports& Reports() { return reports_; }
    const LongWork& Work() const { return work_; }
    void SetWork(LongWork work) { work_ = std::move(work); }

    const std::vector<Theme>& Themes() const { return listed_.themes; }
    // What could not be taken from the themes, and what was repaired, a sentence each.
    const std::vector<std::string>& Skipped() const { return listed_.skipped; }
    const std::vector<std::string>& Repairs() const { return repairs_; }
    // The theme whose interrupted save opening the web has completed; empty for none.
    const std::string& CompletedTheme() const { return completedTheme_; }

    // Lists the themes again and unpacks those that are not unpacked yet.
    void RefreshThemes();
    // Lists the themes again and unpacks this one anew; false when the web does not have it.
    bool MakeThemeFresh(const std::string& name);

    // The save that is running; null when there is none.
    WebSaveTransaction* Transaction() const { return transaction_; }
    void SetTransaction(WebSaveTransaction* transaction) { transaction_ = transaction; }

    // A save has ended: its record goes when this object does.
    void SetSaved() { hasSaved_ = true; }

    // Whether pages that name the theme that a save starts from follow to the new one, too.
    void LetPagesFollow(bool follow) { pagesFollow_ = follow; }
    bool PagesFollow() const { return pagesFollow_; }
    // The pages that kept a theme of their own when a theme was applied last, by its name.
    const std::map<std::string, int>& KeptThemes() const { return keptThemes_; }
    void SetKeptThemes(std::map<std::string, int> kept) { keptThemes_ = std::move(kept); }

    // Whether a page uses the theme that was applied last.
    bool IsThemeShown() const { return isThemeShown_; }
    void SetThemeShown(bool shown) { isThemeShown_ = shown; }

  private:
    UnpackOptions OptionsFor(const std::optional<std::string>& onlyTheme) const;

    Disk& disk_;
    WebOptions options_;
    WebFiles files_;
    WebReports reports_;
    LongWork work_;
    ListedThemes listed_;
    std::vector<std::string> repairs_;
    std::string completedTheme_;
    WebSaveTransaction* transaction_ = nullptr;
    bool hasSaved_ = false;
    bool isThemeShown_ = false;
    bool pagesFollow_ = false;
    std::map<std::string, int> keptThemes_;
};

}  // namespace morpho
