#include "web_host/hidden_entries.h"

#include "text/ignoring_case.h"
#include "web_host/web_settings.h"

namespace morpho {

bool IsHiddenEntry(const FolderEntry& entry) {
    if (entry.name.starts_with('.')) return true;
    return entry.kind == EntryKind::kFolder && entry.name.starts_with('_') &&
           !EqualIgnoringCase(entry.name, "_private");
}

bool IsShownEntry(const FolderEntry& entry, bool showsHidden) {
    const bool isKnown = entry.kind == EntryKind::kFolder || entry.kind == EntryKind::kFile;
    return isKnown && !IsTemporaryName(entry.name) && (showsHidden || !IsHiddenEntry(entry));
}

bool ShowsHiddenEntries(const WebFiles& web) {
    try {
        const std::string value = WebSetting(web, "vti_showhiddenpages").value_or("");
        return EqualIgnoringAsciiCase(value, "true") ||
               value.find_first_of("123456789") != value.npos;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace morpho
