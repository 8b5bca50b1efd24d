#pragma once

namespace morpho {

// Whether the byte of an ANSI or UTF-8 text is one of the control characters of ASCII.
constexpr bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

}  // namespace morpho
