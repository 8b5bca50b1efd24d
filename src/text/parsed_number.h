#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace morpho {

// Reads the whole text as an integer in this base, with "-" before a negative one. Nothing when the
// text contains anything else or the number does not fit the type.
template <typename Number>
std::optional<Number> ParsedNumber(std::string_view text, int base = 10) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    if (error != std::errc() || stop != end) return {};
    return number;
}

}  // namespace morpho
