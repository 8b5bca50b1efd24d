#include "web_host/theme_of_web.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/page_walk.h"

namespace morpho {

namespace {

// The head of every page that was ever made in the host fits in here.
constexpr std::uint64_t kHeadBytes = 64 * 1024;

// As much of the page as its head can be; what cannot be read has no theme.
std::string HeadOf(const Folder& root, const std::string& name) {
    try {
        return root.OpenFile(name)->Read(0, kHeadBytes);
    } catch (const RunTimeError&) {
        return {};
    }
}

std::optional<PageTheme> ThemeOf(const Folder& folder, const std::string& page) {
    return ThemeOfPage(PageText(HeadOf(folder, page)).Text());
}

// The theme of the web, as far as this page takes it.
std::optional<std::string> ThemeTaken(const Folder& root, const std::string& name) {
    const auto theme = ThemeOf(root, name);
    if (!theme || !theme->ofWeb) return {};
    return theme->name;
}

bool IsPage(const FolderEntry& entry) {
    return entry.kind == EntryKind::kFile && IsPageName(entry.name);
}

}  // namespace

std::string ThemeOfWeb(const Folder& root) {
    std::vector<FolderEntry> pages = root.Entries();
    std::erase_if(pages, [](const FolderEntry& entry) { return !IsPage(entry); });
    for (const std::string_view home : kHomePages) {
        for (const FolderEntry& page : pages) {
            if (!EqualIgnoringCase(page.name, home)) continue;
            if (auto theme = ThemeTaken(root, page.name)) return *theme;
        }
    }
    std::map<std::string, int> counts;
    for (const FolderEntry& page : pages) {
        const auto theme = ThemeTaken(root, page.name);
        if (theme && !theme->empty()) ++counts[*theme];
    }
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? "" : most->first;
}

bool HasPage(const WebFiles& web, const PageChoice& choice) {
    bool found = false;
    VisitPageFolders(
        web,
        [&](const std::shared_ptr<Folder>& folder, const std::string& /*url*/,
            const std::vector<FolderEntry>& entries) {
            for (const FolderEntry& entry : entries) {
                if (found || !IsPage(entry)) continue;
                const auto theme = ThemeOf(*folder, entry.name);
                found = theme && choice.Has(*theme);
            }
        },
        [](const std::string&) {});
    return found;
}

}  // namespace morpho
