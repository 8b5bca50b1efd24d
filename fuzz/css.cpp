// A style sheet, whatever it holds, is read in time and memory that its length allows, and what is
// read keeps its promises.

#include "formats/css_reader.h"
#include "formats/theme_addresses.h"
#include "formats/url_value.h"
#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view sheet = Text(data, size);
    std::size_t length = 0;
    for (const morpho::CssRule& rule : morpho::ReadCss(sheet)) {
        for (const morpho::CssDeclaration& declaration : rule.declarations) {
            Require(!declaration.name.empty(), "A declaration has no name.");
            Require(!declaration.value.empty(), "A declaration has no value.");
            length += declaration.value.size();
        }
    }
    Require(length <= size, "The values are longer than the style sheet.");
    const std::string kept =
        morpho::WithOwnPictures(sheet, [](const std::string&) { return false; });
    Require(kept == sheet, "A style sheet without pictures of its own has changed.");
    return 0;
}
