#include "shared/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "platform/run_time_error.h"

namespace morpho {

double Val(std::string_view text) {
    std::string number;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') number += c;
    }
    if (number.starts_with('+')) number.erase(0, 1);
    // from_chars would also take a word, such as "inf".
    if (number.find_first_of("0123456789") != number.find_first_not_of("-.")) return 0;
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return value;
}

int WholeNumber(double value) {
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max()))
        throw RunTimeError(ErrorNumber::kOverflow, "Overflow");
    return static_cast<int>(whole);
}

}  // namespace morpho
