#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace morpho {

// The system's ANSI code page (Windows-1252 on the desktop).
class CodePage {
  public:
    virtual ~CodePage() = default;

    // The bytes as UTF-8. No byte is refused or dropped. With a single-byte code page, ToBytes
    // restores the same bytes.
    virtual std::string ToText(std::string_view bytes) const = 0;
    // UTF-8 as bytes. A character that the code page lacks becomes what `missing` returns for it,
    // or "?".
    virtual std::string ToBytes(std::string_view text,
                                const std::function<std::string(char32_t)>& missing = {}) const = 0;
};

}  // namespace morpho
