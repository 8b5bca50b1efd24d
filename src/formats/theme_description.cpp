#include "formats/theme_description.h"

#include <algorithm>

#include "platform/code_page.h"
#include "text/ignoring_case.h"
#include "text/utf8.h"

namespace morpho {

namespace {

constexpr std::string_view kInfo = "info";
constexpr std::string_view kTitle = "title";
constexpr std::string_view kCodePage = "codepage";
constexpr std::string_view kUtf8 = "65001";
constexpr std::string_view kTitles = "Titles";
constexpr std::string_view kLanguage = "1033";

}  // namespace

ThemeDescription::ThemeDescription(const CodePage& codePage, std::string_view bytes)
    : codePage_(codePage), text_(bytes) {}

// Files that declare another code page hold UTF-8 too, mostly in their section "Titles". A text of
// another coding is hardly ever valid UTF-8 by chance.
std::string ThemeDescription::TextOf(std::string_view bytes) const {
    return IsUtf8(bytes) ? std::string(bytes) : codePage_.ToText(bytes);
}

std::string ThemeDescription::Title() const {
    const std::string title = TextOf(text_.Value(kInfo, kTitle).value_or(""));
    return title.substr(0, title.find('\0'));
}

bool ThemeDescription::IsReadOnly() const {
    const std::string value = text_.Value(kInfo, "readonly").value_or("false");
    return EqualIgnoringAsciiCase(value, "true") || value == "1";
}

void ThemeDescription::SetTitle(std::string_view title) {
    if (Title() != title) text_.SetValue(kInfo, kTitle, TitleBytes(title));
    std::string ofLanguage = text_.Value(kTitles, kLanguage).value_or("");
    if (TextOf(ofLanguage) != title) ofLanguage = TitleBytes(title);
    text_.SetSection(kTitles, {{std::string(kLanguage), ofLanguage}});
}

// The title in the code page that the file declares, which may change it.
std::string ThemeDescription::TitleBytes(std::string_view title) {
    if (text_.Value(kInfo, kCodePage) == kUtf8) return std::string(title);
    const std::string bytes = codePage_.ToBytes(title);
    if (TextOf(bytes) == title) return bytes;
    text_.SetValue(kInfo, kCodePage, kUtf8);
    return std::string(title);
}

void ThemeDescription::SetWritable() {
    text_.SetValue(kInfo, "readonly", "0");
}

std::string ThemeDescription::Utf8Bytes() const {
    const std::string bytes = Bytes();
    std::string utf8;
    // Line by line, for the lines may differ in their coding.
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", begin), bytes.size() - 1) + 1;
        utf8 += TextOf(std::string_view(bytes).substr(begin, end - begin));
        begin = end;
    }
    return utf8;
}

}  // namespace morpho
