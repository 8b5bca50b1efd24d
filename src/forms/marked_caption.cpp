#include "forms/marked_caption.h"

namespace morpho {

namespace {

bool CanBeKey(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

MarkedCaption ReadMarks(std::string_view marked) {
    MarkedCaption read;
    for (std::size_t at = 0; at < marked.size(); ++at) {
        const char next = marked[at] == '&' && at + 1 < marked.size() ? marked[at + 1] : '\0';
        if (next == '&') {
            ++at;
        } else if (CanBeKey(next)) {
            if (read.keyAt == std::string::npos) read.keyAt = read.text.size();
            continue;
        }
        read.text += marked[at];
    }
    return read;
}

}  // namespace morpho
