#include "formats/html_tags.h"

#include <algorithm>
#include <array>

#include "text/ascii.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr std::string_view kEndOfName = " \t\r\n\f/>";

// Elements whose content is text, whatever it looks like.
constexpr std::array<std::string_view, 8> kTextElements = {
    "script", "style", "title", "textarea", "xmp", "iframe", "noembed", "noframes"};

// Tags have some ten attributes. A page of nothing but attributes would otherwise take forty times
// its size in memory.
constexpr std::size_t kMaxAttributes = 1000;

// Whether the rest of the page begins with the end tag of this element.
bool EndsText(std::string_view rest, const std::string& name) {
    if (!StartsWithIgnoringAsciiCase(rest, "</" + name)) return false;
    rest.remove_prefix(name.size() + 2);
    return rest.empty() || kEndOfName.find(rest.front()) != kEndOfName.npos;
}

}  // namespace

const HtmlAttribute* HtmlTag::Find(std::string_view wanted) const {
    for (const HtmlAttribute& attribute : attributes) {
        if (attribute.name == wanted) return &attribute;
    }
    return nullptr;
}

std::optional<std::string> HtmlTag::Attribute(std::string_view wanted) const {
    const HtmlAttribute* found = Find(wanted);
    return found ? std::optional(found->value) : std::nullopt;
}

std::optional<HtmlTag> HtmlTagReader::Next() {
    for (PassTo("<"); !AtEnd(); PassTo("<")) {
        if (StartsWith("<!") || StartsWith("<?")) {
            SkipComment();
        } else if (auto tag = ReadTag()) {
            return tag;
        }
    }
    return {};
}

void HtmlTagReader::SkipComment() {
    const bool comment = StartsWith("<!--");
    // "<!-->" is a whole comment: its dashes count twice.
    const std::string_view close = comment ? "-->" : ">";
    const std::size_t end = page_.find(close, position_ + 2);
    position_ = end == page_.npos ? page_.size() : end + close.size();
}

// The tag at a "<"; nothing when it is none or does not end.
std::optional<HtmlTag> HtmlTagReader::ReadTag() {
    HtmlTag tag;
    tag.begin = position_;
    ++position_;
    if (StartsWith("/")) {
        tag.name = "/";
        ++position_;
    }
    if (AtEnd() || !IsLetter(page_[position_])) return {};
    tag.name += AsciiLowered(PassTo(kEndOfName));
    ReadAttributes(tag);
    if (AtEnd()) return {};
    tag.end = ++position_;
    if (std::find(kTextElements.begin(), kTextElements.end(), tag.name) != kTextElements.end())
        tag.text = ReadTextOf(tag.name);
    return tag;
}

void HtmlTagReader::ReadAttributes(HtmlTag& tag) {
    for (;;) {
        SkipBlanks();
        if (AtEnd() || page_[position_] == '>') return;
        if (page_[position_] == '/') {
            ++position_;
            continue;
        }
        // A name may begin with "=", but not go on with it.
        const std::size_t start = position_++;
        PassTo(" \t\r\n\f/>=");
        HtmlAttribute attribute{AsciiLowered(page_.substr(start, position_ - start)), {}};
        SkipBlanks();
        if (StartsWith("=")) {
            ++position_;
            ReadValue(attribute);
        }
        if (tag.attributes.size() < kMaxAttributes) tag.attributes.push_back(std::move(attribute));
    }
}

void HtmlTagReader::ReadValue(HtmlAttribute& attribute) {
    SkipBlanks();
    const bool quoted = StartsWith("\"") || StartsWith("'");
    const std::string_view end = quoted ? page_.substr(position_++, 1) : " \t\r\n\f>";
    attribute.valueBegin = position_;
    attribute.value = PassTo(end);
    if (quoted && !AtEnd()) ++position_;
}

// To the element's end tag, which is left to be read.
std::string_view HtmlTagReader::ReadTextOf(const std::string& name) {
    const std::size_t start = position_;
    while (!AtEnd()) {
        position_ = std::min(page_.find("</", position_), page_.size());
        if (EndsText(page_.substr(position_), name)) break;
        position_ = std::min(position_ + 2, page_.size());
    }
    return page_.substr(start, position_ - start);
}

void HtmlTagReader::SkipBlanks() {
    position_ = std::min(page_.find_first_not_of(kBlanks, position_), page_.size());
}

std::string_view HtmlTagReader::PassTo(std::string_view characters) {
    const std::size_t start = position_;
    position_ = std::min(page_.find_first_of(characters, start), page_.size());
    return page_.substr(start, position_ - start);
}

}  // namespace morpho
