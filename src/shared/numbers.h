#pragma once

#include <cstdint>
#include <string_view>

namespace morpho {

// The number a text begins with, as classic Basic reads it: blanks anywhere are skipped, then sign,
// digits, decimal point, exponent; what follows is ignored. 0 when there is none.
double Val(std::string_view text);

// The nearest whole number, halves to the even one. Throws RunTimeError (kOverflow) outside 32
// bits.
int WholeNumber(double value);

// The whole text as a number, read like the conversion functions of classic Basic: blanks around
// it, sign, decimal point and exponent are allowed. It is rounded like WholeNumber. Throw
// RunTimeError: kTypeMismatch when the text is not a number, kOverflow when the type cannot hold
// it.
std::int16_t CInt(std::string_view text);
std::int32_t CLng(std::string_view text);

}  // namespace morpho
