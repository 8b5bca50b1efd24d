#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace morpho {

// Windows-1252. The five undefined bytes are read as the control characters of the same number, so
// that every byte survives a round trip.
std::string TextFromWindows1252(std::string_view bytes);

// UTF-8 as Windows-1252. A character that the code page lacks becomes what `missing` returns for
// it, or "?"; bytes of `text` that are not UTF-8 count as the replacement character.
std::string Windows1252FromText(std::string_view text,
                                const std::function<std::string(char32_t)>& missing = {});

// The text of bytes whose encoding is not reliably known: UTF-8 when they are valid UTF-8,
// otherwise Windows-1252.
std::string TextOfUnknownCoding(std::string_view bytes);

}  // namespace morpho
