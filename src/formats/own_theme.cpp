#include "formats/own_theme.h"

#include "formats/html_tags.h"
#include "formats/page_theme.h"
#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "platform/run_time_error.h"

namespace morpho {

namespace {

// The flags of a theme with background picture, active graphics and style sheet.
constexpr std::string_view kAllEffects = "1011";

std::string LinkOf(const OwnTheme& theme) {
    if (theme.styleSheet.empty()) return {};
    return "<!--mstheme--><link rel=\"stylesheet\" type=\"text/css\" href=\"" + theme.toWeb +
           "_themes/" + EncodedPercents(theme.name) + "/" + EncodedPercents(theme.styleSheet) +
           "\">";
}

std::string MarkOf(const OwnTheme& theme) {
    return EncodedReferences(theme.name) + " " + std::string(kAllEffects);
}

// Where the tag goes in a page without one: behind its head's start.
std::optional<std::size_t> PlaceForTag(const std::string& page) {
    HtmlTagReader tags(page);
    while (const auto tag = tags.Next()) {
        if (tag->name == "head") return tag->end;
        if (tag->name == "body" || tag->name == "frameset") return tag->begin;
    }
    return {};
}

std::string WithoutDefault(std::string page, const ThemeMark& mark) {
    return page.erase(mark.digitsEnd, mark.contentEnd - mark.digitsEnd);
}

// The page, which says that it has no theme, with this one.
std::string InPlaceOfNone(std::string page, const ThemeMark& mark, const OwnTheme& theme) {
    page.insert(mark.tagEnd, LinkOf(theme));
    return page.replace(mark.nameBegin, mark.contentEnd - mark.nameBegin, MarkOf(theme));
}

}  // namespace

std::optional<std::string> PageWithOwnTheme(std::string_view page, const OwnTheme& theme,
                                            const std::function<bool(const ThemeAddress&)>& moves) {
    const PageText coded(page);
    std::string text = coded.Text();
    auto mark = FindThemeMark(text);
    if (!mark) {
        const auto place = PlaceForTag(text);
        if (!place) return {};
        text.insert(*place, "<meta name=\"Microsoft Theme\" content=\"" + MarkOf(theme) + "\">" +
                                LinkOf(theme));
    } else if (mark->theme.name.empty()) {
        text = InPlaceOfNone(text, *mark, theme);
    } else {
        const auto changed =
            PageWithTheme(text, theme.name, {.ofWeb = true, .ownTheme = mark->theme.name}, moves);
        if (changed) text = *changed;
        mark = FindThemeMark(text);
        if (mark->theme.ofWeb) text = WithoutDefault(text, *mark);
    }
    if (text == coded.Text()) return {};
    auto bytes = coded.BytesOf(text);
    if (!bytes) throw RunTimeError(ErrorNumber::kInvalidFileFormat, "The page is broken UTF-16.");
    return bytes;
}

}  // namespace morpho
