// A page that gets another theme differs in the names of the theme only.

#include <algorithm>
#include <vector>

#include "formats/page_theme.h"
#include "formats/theme_addresses.h"
#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "fuzz/fuzz.h"
#include "platform/run_time_error.h"

namespace {

constexpr std::string_view kNew = "xq7";

struct Place {
    std::size_t begin, length;
};

// Where a page's text names a theme, in order.
std::vector<Place> NamesIn(std::string_view text) {
    std::vector<Place> places;
    for (const auto& address : morpho::ThemeAddresses(text))
        places.push_back({address.nameBegin, address.nameLength});
    if (const auto mark = morpho::FindThemeMark(text))
        places.push_back({mark->nameBegin, mark->nameLength});
    std::sort(places.begin(), places.end(),
              [](const Place& left, const Place& right) { return left.begin < right.begin; });
    return places;
}

// Whether `after` is `before` with kNew in place of some of these names.
bool DiffersInNamesOnly(std::string_view before, std::string_view after) {
    std::size_t old = 0;
    for (const Place& name : NamesIn(before)) {
        const std::string_view between = before.substr(old, name.begin - old);
        if (!after.starts_with(between)) return false;
        after.remove_prefix(between.size());
        const std::string_view kept = before.substr(name.begin, name.length);
        after.remove_prefix(after.starts_with(kNew) ? kNew.size()
                                                    : std::min(kept.size(), after.size()));
        old = name.begin + name.length;
    }
    return after == before.substr(old);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view before = Text(data, size);
    try {
        const std::string text = morpho::PageText(before).Text();
        // A name that begins with the new one could not be told from it.
        if (text.find(kNew) != text.npos) return 0;
        const auto theme = morpho::ThemeOfPage(text);
        const morpho::PageChoice choice{true, theme ? theme->name : ""};
        const auto sameFile = [](const morpho::ThemeAddress& address) {
            return std::optional(address.file);
        };
        const auto after = morpho::PageWithTheme(before, kNew, choice, sameFile);
        if (!after) return 0;
        // A file's name with escapes is written anew.
        if (text.find_first_of("%&\\") == text.npos)
            Require(DiffersInNamesOnly(text, morpho::PageText(*after).Text()),
                    "The page differs in more than its theme's name.");
        const auto changed = morpho::ThemeOfPage(morpho::PageText(*after).Text());
        Require(changed && changed->name == kNew, "The page does not have the theme.");
        Require(!morpho::PageWithTheme(*after, kNew, choice, sameFile),
                "A second time changes it.");
    } catch (const morpho::RunTimeError&) {
    }
    return 0;
}
