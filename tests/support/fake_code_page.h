#pragma once

#include "platform/code_page.h"

namespace morpho::test {

// Windows-1252. Its five unused bytes stand for the control characters of the same number.
class FakeCodePage : public CodePage {
  public:
    std::string ToText(std::string_view bytes) const override;
    std::string ToBytes(std::string_view text,
                        const std::function<std::string(char32_t)>& missing = {}) const override;
};

}  // namespace morpho::test
