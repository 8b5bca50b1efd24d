#pragma once

#include <string>
#include <string_view>

namespace morpho {

// A caption without its marks, and the letter in it that reaches the control with Alt.
struct MarkedCaption {
    std::string text;
    std::size_t keyAt = std::string::npos;  // byte index of the letter in `text`; npos: none
};

// Reads a caption with marks: "&" before a letter or digit (of ASCII) marks it, "&&" is one "&",
// any other "&" stands for itself. Only the first mark counts.
MarkedCaption ReadMarks(std::string_view marked);

}  // namespace morpho
