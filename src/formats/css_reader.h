#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

struct CssDeclaration {
    std::string name;   // escapes resolved, letter case as written
    std::string value;  // as written, without blanks around it and without comments; never empty
};

struct CssRule {
    std::string selector;  // runs of blanks made one; of comments at most "/**/" in "a/**/b"
    std::vector<CssDeclaration> declarations;

    // The value of the last declaration of this property, compared without regard to case.
    std::optional<std::string> Value(std::string_view property) const;
};

// The top-level style rules of a style sheet (UTF-8) in order, read after "5. Parsing" of the W3C's
// CSS Syntax Module Level 3: @-rules with all that is in them are passed over, unknown properties
// kept, broken parts dropped as the module says. Never fails; takes time and memory in proportion
// to the text, however it is nested.
std::vector<CssRule> ReadCss(std::string_view text);

}  // namespace morpho
