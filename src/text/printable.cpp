#include "text/printable.h"

#include "text/ascii.h"

namespace morpho {

std::string Printable(std::string_view text, LineEnds lineEnds) {
    std::string printable;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        if (text[i] == '\xC2' && (next & 0xE0) == 0x80) {
            printable += '?';
            ++i;
        } else if (IsControl(text[i]) && (text[i] != '\n' || lineEnds == LineEnds::kReplaced)) {
            printable += '?';
        } else {
            printable += text[i];
        }
    }
    return printable;
}

}  // namespace morpho
