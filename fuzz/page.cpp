// A page that gets another theme differs in the names of the theme only.

#include <map>

#include "formats/page_theme.h"
#include "formats/theme_addresses.h"
#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "fuzz/fuzz.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace {

constexpr std::string_view kNew = "xq7";

// The text with kNew wherever it names this theme.
std::string WithNewName(std::string_view text, std::string_view theme) {
    std::map<std::size_t, std::size_t> names;  // where one begins, and its length
    for (const auto& address : morpho::ThemeAddresses(text)) {
        if (morpho::EqualIgnoringCase(address.theme, theme))
            names[address.nameBegin] = address.nameLength;
    }
    if (const auto mark = morpho::FindThemeMark(text)) names[mark->nameBegin] = mark->nameLength;
    std::string result;
    std::size_t done = 0;
    for (const auto& [begin, length] : names) {
        result.append(text.substr(done, begin - done)).append(kNew);
        done = begin + length;
    }
    return result.append(text.substr(done));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view before = Text(data, size);
    try {
        const std::string text = morpho::PageText(before).Text();
        const auto theme = morpho::ThemeOfPage(text);
        const morpho::PageChoice choice{true, theme ? theme->name : ""};
        const auto sameFile = [](const morpho::ThemeAddress& address) {
            return std::optional(address.file);
        };
        const auto after = morpho::PageWithTheme(before, kNew, choice, sameFile);
        if (!after) return 0;
        // A file's name with escapes is written anew.
        if (text.find_first_of("%&\\") == text.npos)
            Require(morpho::PageText(*after).Text() == WithNewName(text, choice.ownTheme),
                    "The page differs in more than its theme's name.");
        const auto changed = morpho::ThemeOfPage(morpho::PageText(*after).Text());
        Require(changed && changed->name == kNew, "The page does not have the theme.");
        Require(!morpho::PageWithTheme(*after, kNew, choice, sameFile),
                "A second time changes it.");
    } catch (const morpho::RunTimeError&) {
    }
    return 0;
}
