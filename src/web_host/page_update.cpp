#include "web_host/page_update.h"

#include <algorithm>

#include "formats/page_theme.h"
#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "web_host/limits.h"
#include "web_host/parallel.h"

namespace morpho {

namespace {

// Pages are written in groups: several in parallel, without holding a whole web in memory, or more
// folders open than a program may have.
constexpr std::size_t kMaxGroup = 256;
constexpr std::size_t kMaxGroupBytes = 16 * kMegabyte;

}  // namespace

void PageUpdate::Run(std::optional<std::uint64_t> deadProgram) {
    VisitPageFolders(
        web_,
        [&](const std::shared_ptr<Folder>& folder, const std::string& url,
            const std::vector<FolderEntry>& entries) {
            if (deadProgram) Sweep(*folder, entries, *deadProgram);
            VisitFolder(folder, url, entries);
        },
        report_);
    Write();
    if (theme_) ReportSummary();
}

void PageUpdate::VisitFolder(const std::shared_ptr<Folder>& folder, const std::string& url,
                             const std::vector<FolderEntry>& entries) {
    const auto isPage = [](const FolderEntry& entry) {
        return entry.kind == EntryKind::kFile && IsPageName(entry.name);
    };
    pagesFound_ += static_cast<std::size_t>(std::count_if(entries.begin(), entries.end(), isPage));
    for (const FolderEntry& entry : entries) {
        if (isPage(entry)) Visit({folder, entry.name, url + entry.name});
    }
}

void PageUpdate::Advance(std::size_t pages) {
    pagesDone_ += pages;
    if (advanced_) advanced_(pagesDone_, pagesFound_);
}

void PageUpdate::Visit(const WebPage& page) {
    try {
        const std::string bytes = ReadWholeFile(*page.folder, page.name, kMaxPageBytes);
        auto changed =
            theme_ ? PageWithTheme(bytes, *theme_, choice_,
                                   [this](const ThemeAddress& address) { return NewFile(address); })
                   : std::nullopt;
        const std::string text = PageText(changed ? *changed : bytes).Text();
        NoteBroken(page.url, text);
        if (!changed) {
            Advance(1);
            return LookAtUnchanged(text);
        }
        changes_.push_back({page.folder, page.name, page.url, std::move(*changed)});
        changedBytes_ += changes_.back().bytes.size();
    } catch (const RunTimeError& error) {
        Advance(1);
        ReportKept(page.url, error);
    }
    if (changes_.size() >= kMaxGroup || changedBytes_ >= kMaxGroupBytes) Write();
}

std::optional<std::string> PageUpdate::NewFile(const ThemeAddress& address) {
    auto file = files_.FileFor(address, *theme_);
    if (!file) kept_.insert(address.file);
    return file;
}

// The page may have the theme already, or one of its own.
void PageUpdate::LookAtUnchanged(const std::string& text) {
    const auto theme = theme_ ? ThemeOfPage(text) : std::nullopt;
    if (!theme || theme->name.empty()) return;
    const bool hasTheme = EqualIgnoringCase(theme->name, *theme_);
    if (hasTheme && (theme->ofWeb ? choice_.ofWeb : !choice_.ownTheme.empty())) isShown_ = true;
    if (!hasTheme && !theme->ofWeb) CountKept(theme->name);
}

// Pages spell the name of one theme in several ways; the first one found is told.
void PageUpdate::CountKept(const std::string& theme) {
    const auto known = std::find_if(keptThemes_.begin(), keptThemes_.end(), [&](const auto& kept) {
        return EqualIgnoringCase(kept.first, theme);
    });
    ++(known == keptThemes_.end() ? keptThemes_[theme] : known->second);
}

void PageUpdate::NoteBroken(const std::string& url, const std::string& text) {
    for (const ThemeAddress& address : ThemeAddresses(text)) {
        if (address.file.empty() || files_.Has(address.theme, address.file)) continue;
        broken_.push_back("Broken hyperlink in \"" + url + "\": _themes/" + address.theme + "/" +
                          address.file);
    }
}

void PageUpdate::Write() {
    InParallel(changes_.size(), [this](std::size_t i) {
        Change& change = changes_[i];
        try {
            WriteWholeFile(*change.folder, change.name, change.bytes, Durability::kFlushed);
        } catch (const RunTimeError& error) {
            change.failure = error;
        }
    });
    for (const Change& change : changes_) {
        isShown_ = isShown_ || !change.failure;
        if (change.failure) ReportKept(change.url, *change.failure);
    }
    Advance(changes_.size());
    changes_.clear();
    changedBytes_ = 0;
}

void PageUpdate::ReportKept(const std::string& url, const RunTimeError& error) {
    report_(theme_ ? "The page \"" + url + "\" keeps its theme: " + error.what() : error.what());
}

void PageUpdate::ReportSummary() {
    if (!isShown_)
        report_("No page uses the theme \"" + *theme_ +
                "\": none takes the web's theme, or none could be written.");
    if (kept_.empty()) return;
    std::string files;
    for (const std::string& file : kept_)
        files += (files.empty() ? "" : ", ") + file;
    report_("The theme \"" + *theme_ +
            "\" lacks files that the pages use; their addresses still lead to the earlier theme: " +
            files + ".");
}

void PageUpdate::ReportKeptThemes() const {
    for (const auto& [theme, count] : keptThemes_)
        report_(count == 1 ? "1 page names the theme \"" + theme + "\" itself and keeps it."
                           : std::to_string(count) + " pages name the theme \"" + theme +
                                 "\" themselves and keep it.");
}

void PageUpdate::Sweep(Folder& folder, const std::vector<FolderEntry>& entries,
                       std::uint64_t program) {
    for (const FolderEntry& entry : entries) {
        if (entry.kind == EntryKind::kFile && ProgramOfTemporaryName(entry.name) == program)
            folder.Remove(entry.name);
    }
}

}  // namespace morpho
