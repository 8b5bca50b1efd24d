#include "forms/file_dialog.h"

#include <algorithm>

#include "text/trim.h"

namespace morpho {

namespace {

// Cuts the part before the next separator off the text.
std::string_view CutPart(std::string_view& text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

}  // namespace

std::vector<FileType> ReadFilter(std::string_view filter) {
    std::vector<FileType> types;
    while (!filter.empty()) {
        FileType type{std::string(CutPart(filter, '|')), {}};
        std::string_view patterns = CutPart(filter, '|');
        while (!patterns.empty()) {
            const std::string_view pattern = Trim(CutPart(patterns, ';'));
            if (!pattern.empty()) type.patterns.emplace_back(pattern);
        }
        if (!type.description.empty() && !type.patterns.empty()) types.push_back(std::move(type));
    }
    return types;
}

}  // namespace morpho
