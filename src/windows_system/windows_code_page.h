#pragma once

#include "platform/code_page.h"

namespace morpho {

// The ANSI code page that this computer is set to.
class WindowsCodePage : public CodePage {
  public:
    std::string ToText(std::string_view bytes) const override;
    std::string ToBytes(std::string_view text,
                        const std::function<std::string(char32_t)>& missing = {}) const override;
};

}  // namespace morpho
