#pragma once

namespace morpho {

// Whether the byte of an ANSI or UTF-8 text is one of the control characters of ASCII.
constexpr bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

// Whether it is a letter of ASCII.
constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace morpho
