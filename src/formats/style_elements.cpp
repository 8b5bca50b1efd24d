#include "formats/style_elements.h"

#include "formats/html_tags.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

bool IsCss(const HtmlTag& tag) {
    const std::string type = tag.Attribute("type").value_or("");
    return type.empty() || EqualIgnoringAsciiCase(type, "text/css");
}

}  // namespace

std::vector<std::string_view> StyleElements(std::string_view html) {
    std::vector<std::string_view> styles;
    std::size_t openTemplates = 0;  // what stands in one is no part of the page
    HtmlTagReader tags(html);
    while (const auto tag = tags.Next()) {
        if (tag->name == "template") {
            ++openTemplates;
        } else if (tag->name == "/template" && openTemplates > 0) {
            --openTemplates;
        } else if (tag->name == "style" && openTemplates == 0 && IsCss(*tag)) {
            styles.push_back(tag->text);
        }
    }
    return styles;
}

}  // namespace morpho
