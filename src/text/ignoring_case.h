#pragma once

#include <string>
#include <string_view>

namespace morpho {

// Names of files, themes and keys: Unicode's simple case folding, as the system's file names and
// registry keys compare. Bytes that are not UTF-8 compare as they are.

// A key that is the same for all names that differ only in case. Its length may differ from the
// name's.
std::string Folded(std::string_view name);
bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Markup, style sheets and other words of a fixed alphabet: only ASCII letters have a case.

// The text with these letters in lower case. Byte positions do not change.
std::string AsciiLowered(std::string_view text);
bool EqualIgnoringAsciiCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringAsciiCase(std::string_view text, std::string_view start);
// The text with every occurrence of `from` replaced by `to`.
std::string ReplacedIgnoringAsciiCase(std::string_view text, std::string_view from,
                                      std::string_view to);

}  // namespace morpho
