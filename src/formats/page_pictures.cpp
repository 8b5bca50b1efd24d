#include "formats/page_pictures.h"

#include <algorithm>
#include <optional>

#include "formats/html_tags.h"
#include "formats/web_text.h"
#include "text/trim.h"
#include "text/windows_1252.h"

namespace morpho {

namespace {

// The address in an attribute. Line ends may stand in the middle of one.
std::string AddressIn(const HtmlTag& tag, std::string_view attribute) {
    const std::string value = tag.Attribute(attribute).value_or("");
    const std::string text = DecodedReferences(TextOfUnknownCoding(value));
    std::string address(Trim(text, kWhiteSpace));
    std::erase_if(address, [](char c) { return c == '\r' || c == '\n' || c == '\t'; });
    return address;
}

}  // namespace

std::vector<std::string_view> PictureTags(std::string_view page) {
    std::vector<std::string_view> found;
    HtmlTagReader tags(page);
    while (const auto tag = tags.Next()) {
        // Browsers take "image" for a misspelled "img".
        if (tag->name == "img" || tag->name == "image")
            found.push_back(page.substr(tag->begin, tag->end - tag->begin));
    }
    return found;
}

std::string PictureSource(std::string_view tag) {
    const auto read = HtmlTagReader(tag).Next();
    return read ? AddressIn(*read, "src") : std::string();
}

std::string BaseOfPage(std::string_view page) {
    HtmlTagReader tags(page);
    while (const auto tag = tags.Next()) {
        if (tag->name == "base" && tag->Find("href")) return AddressIn(*tag, "href");
    }
    return {};
}

}  // namespace morpho
