#pragma once

#include "platform/code_page.h"

namespace morpho {

// Windows-1252. The five bytes that it leaves undefined stand for the control characters of the
// same number, so that every byte survives.
class Windows1252 : public CodePage {
  public:
    std::string ToText(std::string_view bytes) const override;
    // Bytes of `text` that are not UTF-8 count as the replacement character.
    std::string ToBytes(std::string_view text,
                        const std::function<std::string(char32_t)>& missing = {}) const override;
};

// Text in a file that does not reliably say how it is coded: UTF-8 when it is that, otherwise
// Windows-1252.
std::string TextOfUnknownCoding(std::string_view bytes);

}  // namespace morpho
