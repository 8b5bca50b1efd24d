#include "web_host/theme_of_page.h"

#include <array>
#include <set>

#include "formats/own_theme.h"
#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "web_host/limits.h"
#include "web_host/save_locks.h"
#include "web_host/theme_files.h"
#include "web_host/web_session.h"

namespace morpho {

namespace {

// The sheet that holds all of a theme's effects is called so after letters of the theme's name.
// Many themes do not have it: pages with all effects then need those that it is made from.
constexpr std::string_view kSheetOfAllEffects = "1011.css";
constexpr std::array<std::string_view, 3> kSheets = {"theme.css", "color1.css", "graph1.css"};

std::vector<std::string> SheetsOf(const Folder& theme) {
    for (const FolderEntry& entry : theme.Entries()) {
        if (entry.kind == EntryKind::kFile && Folded(entry.name).ends_with(kSheetOfAllEffects))
            return {entry.name};
    }
    std::vector<std::string> sheets;
    for (const std::string_view name : kSheets) {
        if (const auto entry = theme.Find(name)) sheets.push_back(entry->name);
    }
    return sheets;
}

OwnTheme OwnThemeFor(const WebFiles& web, const WebPath& page, const std::string& theme) {
    OwnTheme own{theme, {}, SheetsOf(*web.OpenFolder({std::string(kThemesFolder), theme}))};
    for (std::size_t i = 1; i < page.size(); ++i)
        own.toWeb += "../";
    return own;
}

// The theme's name as spelled on the disk.
std::string SpelledName(const WebSession& web, const std::string& theme) {
    for (const Theme& known : web.Themes()) {
        if (EqualIgnoringCase(known.name, theme)) return known.name;
    }
    throw RunTimeError(ErrorNumber::kAutomation, "The web has no theme \"" + theme + "\".");
}

SaveLocks LockForSave(const WebSession& web) {
    std::string holder;
    SaveLocks locks = TryLockForSave(web, holder);
    if (!locks.AreHeld())
        throw RunTimeError(ErrorNumber::kPermissionDenied,
                           "Nothing was written: a theme is being saved by " + holder + ".");
    return locks;
}

std::string StillUsed(const std::string& theme, const std::set<std::string>& files) {
    if (files.empty()) return {};
    std::string names;
    for (const std::string& file : files)
        names += (names.empty() ? "" : ", ") + file;
    return "The theme \"" + theme +
           "\" lacks files that the page uses; their addresses still lead to the earlier theme: " +
           names + ".";
}

}  // namespace

std::string NameOfPageTheme(const WebSession& web, const WebPath& page) {
    const auto folder = web.Files().OpenFolder({page.begin(), page.end() - 1});
    const std::string bytes = ReadWholeFile(*folder, page.back(), kMaxPageBytes);
    const auto theme = ThemeOfPage(PageText(bytes).Text());
    return theme ? theme->name : std::string();
}

std::string GiveThemeToPage(WebSession& web, const WebPath& page, const std::string& theme) {
    const WebFiles& files = web.Files();
    const std::string name = SpelledName(web, theme);
    const SaveLocks locks = LockForSave(web);
    const auto folder = files.OpenFolder({page.begin(), page.end() - 1});
    const std::string bytes = ReadWholeFile(*folder, page.back(), kMaxPageBytes);
    ThemeFiles themes(files);
    std::set<std::string> stay;
    const auto newFile = [&](const ThemeAddress& address) {
        auto file = themes.FileFor(address, name);
        if (!file) stay.insert(address.file);
        return file;
    };
    const auto changed = PageWithOwnTheme(bytes, OwnThemeFor(files, page, name), newFile);
    if (changed) WriteWholeFile(*folder, page.back(), *changed, Durability::kFlushed);
    return StillUsed(name, stay);
}

}  // namespace morpho
