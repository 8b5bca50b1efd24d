#include "web_host/page_walk.h"

#include <algorithm>
#include <array>

#include "text/ignoring_case.h"
#include "web_host/limits.h"

namespace morpho {

namespace {

constexpr std::array<std::string_view, 11> kPageExtensions = {
    ".htm", ".html", ".shtm", ".shtml", ".stm", ".asp", ".aspx", ".php", ".jsp", ".cfm", ".dwt"};

// A web's own settings stand in "_vti_pvt": a folder that has one is another web.
bool IsWeb(const std::vector<FolderEntry>& entries) {
    return std::any_of(entries.begin(), entries.end(), [](const FolderEntry& entry) {
        return entry.kind == EntryKind::kFolder && EqualIgnoringCase(entry.name, "_vti_pvt");
    });
}

bool HasPages(const FolderEntry& folder) {
    return folder.kind == EntryKind::kFolder && !folder.name.starts_with('.') &&
           !EqualIgnoringCase(folder.name, kThemesFolder) &&
           !StartsWithIgnoringAsciiCase(folder.name, "_vti_");
}

}  // namespace

bool IsPageName(std::string_view name) {
    const std::string lower = Folded(name);
    return std::any_of(kPageExtensions.begin(), kPageExtensions.end(),
                       [&](std::string_view extension) { return lower.ends_with(extension); });
}

void VisitPageFolders(
    const WebFiles& web,
    const std::function<void(const std::shared_ptr<Folder>& folder, const std::string& url,
                             const std::vector<FolderEntry>& entries)>& visit,
    const std::function<void(const std::string&)>& report) {
    // Folders wait by name, not open: a web may have more of them than a program may have open.
    std::vector<WebPath> pending = {{}};
    while (!pending.empty()) {
        const WebPath names = std::move(pending.back());
        pending.pop_back();
        try {
            const std::shared_ptr<Folder> folder = web.FindFolder(names);
            if (!folder) continue;
            const std::vector<FolderEntry> entries = folder->Entries();
            if (!names.empty() && IsWeb(entries)) continue;
            std::string url;
            for (const std::string& name : names)
                url += name + '/';
            visit(folder, url, entries);
            for (const FolderEntry& entry : entries) {
                if (!HasPages(entry)) continue;
                if (names.size() >= kMaxDepth)
                    throw EntryError(
                        ErrorNumber::kPathFileAccess, *folder, entry.name, "was left out",
                        "a web's folders may be " + std::to_string(kMaxDepth) + " deep");
                pending.push_back(names);
                pending.back().push_back(entry.name);
            }
        } catch (const RunTimeError& error) {
            report(error.what());
        }
    }
}

}  // namespace morpho
