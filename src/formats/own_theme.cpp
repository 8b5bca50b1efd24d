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

// The tag of a page that had no theme, and links to the theme's sheets.
std::string MarkupFor(const OwnTheme& theme) {
    std::string markup = "<meta name=\"Microsoft Theme\" content=\"" +
                         EncodedReferences(theme.name) + " " + std::string(kAllEffects) + "\">";
    if (!theme.styleSheets.empty()) markup += "<!--mstheme-->";
    for (const std::string& sheet : theme.styleSheets)
        markup += "<link rel=\"stylesheet\" type=\"text/css\" href=\"" + theme.toWeb + "_themes/" +
                  EncodedPercents(theme.name) + "/" + EncodedPercents(sheet) + "\">";
    return markup;
}

// Where the tag goes in a page without one: at its head's end, where FrontPage puts it.
std::size_t PlaceForTag(const std::string& page) {
    HtmlTagReader tags(page);
    std::optional<std::size_t> insideHead;
    while (const auto tag = tags.Next()) {
        if (tag->name == "/head" || tag->name == "body" || tag->name == "frameset")
            return tag->begin;
        if (tag->name == "head") insideHead = tag->end;
    }
    if (insideHead) return *insideHead;
    throw RunTimeError(ErrorNumber::kInvalidFileFormat,
                       "The page has no head that could name a theme.");
}

std::string WithoutDefault(std::string page, const ThemeMark& mark) {
    return page.erase(mark.digitsEnd, mark.contentEnd - mark.digitsEnd);
}

}  // namespace

std::optional<std::string> PageWithOwnTheme(std::string_view page, const OwnTheme& theme,
                                            const FileInNewTheme& newFile) {
    const PageText coded(page);
    std::string text = coded.Text();
    auto mark = FindThemeMark(text);
    if (!mark) {
        text.insert(PlaceForTag(text), MarkupFor(theme));
    } else if (mark->theme.name.empty()) {
        // Its tag says so, or is of no use.
        text.replace(mark->tagBegin, mark->tagEnd - mark->tagBegin, MarkupFor(theme));
    } else {
        const auto changed =
            PageWithTheme(text, theme.name, {.ofWeb = true, .ownTheme = mark->theme.name}, newFile);
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
