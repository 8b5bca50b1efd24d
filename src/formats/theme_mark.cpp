#include "formats/theme_mark.h"

#include "formats/html_tags.h"
#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "text/trim.h"
#include "text/windows_1252.h"

namespace morpho {

namespace {

// The tag's content, which stands at `begin` in the page.
ThemeMark ParsedContent(const std::string_view whole, std::size_t begin) {
    ThemeMark mark;
    mark.contentEnd = begin + whole.size();
    std::string_view content = whole;
    const std::size_t comma = content.rfind(',');
    if (comma != content.npos &&
        EqualIgnoringAsciiCase(Trim(content.substr(comma + 1), kWhiteSpace), "default")) {
        mark.theme.ofWeb = true;
        content = content.substr(0, comma);
    }
    content = Trim(content, kWhiteSpace);
    mark.digitsEnd =
        content.empty() ? begin : begin + (content.data() - whole.data()) + content.size();
    const std::size_t blank = content.rfind(' ');
    if (blank != content.npos && content.find_first_not_of("0123456789", blank + 1) == content.npos)
        content = Trim(content.substr(0, blank), kWhiteSpace);
    mark.nameLength = content.size();
    mark.nameBegin = content.empty() ? begin : begin + (content.data() - whole.data());
    if (!EqualIgnoringAsciiCase(content, "none"))
        mark.theme.name = DecodedReferences(TextOfUnknownCoding(content));
    return mark;
}

}  // namespace

bool PageChoice::Has(const PageTheme& theme) const {
    if (theme.name.empty()) return false;
    return theme.ofWeb ? ofWeb : EqualIgnoringCase(theme.name, ownTheme);
}

std::optional<PageTheme> ThemeOfPage(std::string_view page) {
    const auto mark = FindThemeMark(page);
    return mark ? std::optional(mark->theme) : std::nullopt;
}

std::optional<ThemeMark> FindThemeMark(std::string_view page) {
    HtmlTagReader tags(page);
    while (const auto tag = tags.Next()) {
        if (tag->name == "body") return {};
        if (tag->name != "meta") continue;
        if (!EqualIgnoringAsciiCase(tag->Attribute("name").value_or(""), "Microsoft Theme"))
            continue;
        const HtmlAttribute* content = tag->Find("content");
        ThemeMark mark = content ? ParsedContent(content->value, content->valueBegin) : ThemeMark();
        mark.tagBegin = tag->begin;
        mark.tagEnd = tag->end;
        return mark;
    }
    return {};
}

}  // namespace morpho
