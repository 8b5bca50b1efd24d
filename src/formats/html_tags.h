#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

struct HtmlAttribute {
    std::string name;            // lower case
    std::string value;           // as it stands in the page, without quotes
    std::size_t valueBegin = 0;  // its place in the page; 0 for an attribute without value
};

// A tag of an HTML page with its place in it.
struct HtmlTag {
    std::string name;                       // lower case; an end tag's begins with "/"
    std::vector<HtmlAttribute> attributes;  // at most the first thousand
    std::size_t begin = 0;                  // of its "<"
    std::size_t end = 0;                    // behind its ">"
    std::string_view text;  // content of a style, script or other element that holds only text

    // The first attribute of this name; null when the tag does not have it.
    const HtmlAttribute* Find(std::string_view name) const;
    // Its value.
    std::optional<std::string> Attribute(std::string_view name) const;
};

// Reads the tags of an HTML page one after another, without building a document: for pages that
// are only searched, or changed in places. Passes over comments. Takes time in proportion to the
// page, however broken it is, where a parser that repairs the page does not.
class HtmlTagReader {
  public:
    // The bytes of the page, in any coding that has ASCII in it; they must outlive the reader.
    explicit HtmlTagReader(std::string_view page) : page_(page) {}

    // Nothing at the end of the page.
    std::optional<HtmlTag> Next();

  private:
    void SkipComment();
    std::optional<HtmlTag> ReadTag();
    void ReadAttributes(HtmlTag& tag);
    void ReadValue(HtmlAttribute& attribute);
    std::string_view ReadTextOf(const std::string& name);

    void SkipBlanks();
    bool AtEnd() const { return position_ >= page_.size(); }
    bool StartsWith(std::string_view start) const {
        return page_.substr(position_).starts_with(start);
    }
    // Moves to the first of these characters, or to the end; returns what was passed.
    std::string_view PassTo(std::string_view characters);

    std::string_view page_;
    std::size_t position_ = 0;
};

}  // namespace morpho
