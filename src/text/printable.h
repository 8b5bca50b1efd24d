#pragma once

#include <string>
#include <string_view>

namespace morpho {

enum class LineEnds { kKept, kReplaced };

// A UTF-8 text for a terminal: each control character (of ASCII, and U+0080 to U+009F) is a "?".
std::string Printable(std::string_view text, LineEnds lineEnds);

}  // namespace morpho
