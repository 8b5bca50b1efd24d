#pragma once

#include <string_view>

namespace morpho {

// Blanks of markup and of text files.
inline constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";

// The text without these characters at both ends.
inline std::string_view Trim(std::string_view text, std::string_view blanks = " ") {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace morpho
