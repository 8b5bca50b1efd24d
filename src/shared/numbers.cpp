#include "shared/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "platform/run_time_error.h"
#include "text/trim.h"

namespace morpho {

namespace {

template <typename Integer>
Integer Rounded(double value) {
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<Integer>::min() &&
          whole <= std::numeric_limits<Integer>::max()))
        throw RunTimeError(ErrorNumber::kOverflow, "Overflow");
    return static_cast<Integer>(whole);
}

double StrictNumber(std::string_view text) {
    text = Trim(text, kWhiteSpace);
    if (text.starts_with('+')) text.remove_prefix(text.starts_with("+-") ? 0 : 1);
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    // from_chars would also accept a word, such as "inf".
    const bool isWord = text.find_first_not_of("+-.0123456789eE") != std::string_view::npos;
    if (error == std::errc::invalid_argument || stop != end || isWord)
        throw RunTimeError(ErrorNumber::kTypeMismatch, "Type mismatch");
    if (error == std::errc()) return value;
    // The number is too small or too large for a double.
    return text.find("e-") != text.npos || text.find("E-") != text.npos
               ? 0
               : std::numeric_limits<double>::infinity();
}

}  // namespace

double Val(std::string_view text) {
    std::string number;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') number += c;
    }
    if (number.starts_with('+')) number.erase(0, 1);
    // from_chars would also accept a word, such as "inf".
    if (number.find_first_of("0123456789") != number.find_first_not_of("-.")) return 0;
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return value;
}

int WholeNumber(double value) {
    return Rounded<int>(value);
}

std::int16_t CInt(std::string_view text) {
    return Rounded<std::int16_t>(StrictNumber(text));
}

std::int32_t CLng(std::string_view text) {
    return Rounded<std::int32_t>(StrictNumber(text));
}

}  // namespace morpho
