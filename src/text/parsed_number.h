#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace morpho {

// The whole number that the text is, in digits of the base and with "-" before a negative one;
// nothing when there is anything else in the text or the type cannot hold the number.
template <typename Number>
std::optional<Number> ParsedNumber(std::string_view text, int base = 10) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    if (error != std::errc() || stop != end) return {};
    return number;
}

}  // namespace morpho
