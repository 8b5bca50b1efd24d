#pragma once

#include "platform/code_page.h"
#include "text/windows_1252.h"

namespace morpho {

// The code page of old webs, for systems that have none of their own.
class Windows1252CodePage : public CodePage {
  public:
    std::string ToText(std::string_view bytes) const override { return TextFromWindows1252(bytes); }
    std::string ToBytes(std::string_view text,
                        const std::function<std::string(char32_t)>& missing = {}) const override {
        return Windows1252FromText(text, missing);
    }
};

}  // namespace morpho
