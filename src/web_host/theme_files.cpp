#include "web_host/theme_files.h"

#include "text/ignoring_case.h"

namespace morpho {

bool ThemeFiles::Has(const std::string& theme, const std::string& file) {
    const std::string key = Folded(theme);
    const auto known = files_.find(key);
    return (known == files_.end() ? Listed(theme, key) : known->second).contains(Folded(file));
}

const std::set<std::string>& ThemeFiles::Listed(const std::string& theme, const std::string& key) {
    std::set<std::string>& files = files_[key];
    // The name comes from a page's address and may hold anything.
    const auto path = web_.PathOfUrl(std::string(kThemesFolder) + "/" + theme);
    const auto folder = path ? web_.FindFolder(*path) : nullptr;
    if (!folder) return files;
    for (const FolderEntry& entry : folder->Entries())
        files.insert(Folded(entry.name));
    return files;
}

}  // namespace morpho
