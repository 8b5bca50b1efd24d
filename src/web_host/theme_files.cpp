#include "web_host/theme_files.h"

#include <algorithm>

#include "text/ignoring_case.h"

namespace morpho {

namespace {

// A merged sheet is called after letters of its theme's name, then the flags of the effects that it
// is for, and maybe a code page: "orre1011.css", "orre1011-65001.css". Returns what stands behind
// the letters; nothing for other files. `file` is folded.
std::string_view EndingOfMergedSheet(std::string_view file) {
    constexpr std::string_view kSheet = ".css";
    constexpr std::size_t kFlags = 4;
    if (!file.ends_with(kSheet)) return {};
    const std::string_view stem = file.substr(0, file.size() - kSheet.size());
    const std::size_t dash = stem.rfind('-');
    const bool hasCodePage = dash != stem.npos && dash + 1 < stem.size() &&
                             stem.find_first_not_of("0123456789", dash + 1) == stem.npos;
    const std::string_view marked = hasCodePage ? stem.substr(0, dash) : stem;
    if (marked.size() <= kFlags) return {};
    const std::size_t begin = marked.size() - kFlags;
    return marked.find_first_not_of("01", begin) == marked.npos ? file.substr(begin)
                                                                : std::string_view();
}

}  // namespace

bool ThemeFiles::Has(const std::string& theme, const std::string& file) {
    return NamesIn(theme).contains(Folded(file));
}

std::optional<std::string> ThemeFiles::FileFor(const ThemeAddress& address,
                                               const std::string& theme) {
    if (Has(theme, address.file)) return address.file;
    const std::string file = Folded(address.file);
    const std::string_view ending = EndingOfMergedSheet(file);
    const Names& names = NamesIn(theme);
    const auto sheet = std::find_if(names.begin(), names.end(), [&](const auto& name) {
        return !ending.empty() && EndingOfMergedSheet(name.first) == ending;
    });
    if (sheet != names.end()) return sheet->second;
    if (Has(address.theme, address.file)) return {};
    return address.file;
}

const ThemeFiles::Names& ThemeFiles::NamesIn(const std::string& theme) {
    const auto [place, isNew] = files_.try_emplace(Folded(theme));
    Names& names = place->second;
    if (!isNew) return names;
    // The name comes from a page's address and may hold anything.
    const auto path = web_.PathOfUrl(std::string(kThemesFolder) + "/" + theme);
    const auto folder = path ? web_.FindFolder(*path) : nullptr;
    if (!folder) return names;
    for (const FolderEntry& entry : folder->Entries())
        names.emplace(Folded(entry.name), entry.name);
    return names;
}

}  // namespace morpho
