#pragma once

#include <string>
#include <string_view>

namespace morpho {

// Style-sheet text, character by character. Positions count from 1; whitespace is blank, tab,
// vertical tab and line ends.

// The position of the first other character at or after `start`; 0 beyond the end of the text.
std::size_t IgnoreWhiteSpaces(std::string_view text, std::size_t start);

// Whether a property's value begins like url(...).
bool IsUrlValue(std::string_view value);
// The name inside url(...), without quotes and blanks around it; false when the parenthesis is
// never closed. Throws RunTimeError when nothing follows "url" at all.
bool FileNameOfUrl(std::string_view value, std::string& name);

// Whether a name taken relative to a folder names something in that folder: it does not climb out,
// is not absolute and has no drive.
bool StaysInsideFolder(std::string_view name);

}  // namespace morpho
