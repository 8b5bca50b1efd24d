#pragma once

#include <string_view>

namespace morpho {

// The number a text begins with, as classic Basic reads it: blanks anywhere are skipped, then sign,
// digits, decimal point, exponent; what follows is ignored. 0 when there is none.
double Val(std::string_view text);

// The nearest whole number, halves to the even one. Throws RunTimeError (kOverflow) outside 32
// bits.
int WholeNumber(double value);

}  // namespace morpho
