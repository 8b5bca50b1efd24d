#include "web_host/entry_index.h"

#include <algorithm>

#include "text/ignoring_case.h"
#include "web_host/web_files.h"

namespace morpho {

EntryIndex::EntryIndex(const Folder& folder) : folder_(folder) {
    for (FolderEntry& entry : folder.Entries()) {
        std::string folded = Folded(entry.name);
        byFoldedName_.emplace(std::move(folded), std::move(entry));
    }
}

std::optional<FolderEntry> EntryIndex::Find(const std::string& name) const {
    const auto [begin, end] = byFoldedName_.equal_range(Folded(name));
    if (begin == end) return {};
    const auto same =
        std::find_if(begin, end, [&](const auto& entry) { return entry.second.name == name; });
    return same == end ? begin->second : same->second;
}

std::optional<FolderEntry> EntryIndex::FindFile(const std::string& name) const {
    auto entry = Find(name);
    if (entry && entry->kind != EntryKind::kFile)
        throw EntryError(ErrorNumber::kPathFileAccess, folder_, name, "could not be written",
                         "something stands there that is no file");
    return entry;
}

}  // namespace morpho
