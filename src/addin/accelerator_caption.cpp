// How a command gets its access key.

#include <set>

#include "addin/mod_addin_common.h"
#include "text/ignoring_case.h"
#include "text/utf8.h"

namespace morpho {

namespace {

// The character at `position`, and moves behind it.
std::string_view CharacterAt(std::string_view text, std::size_t& position) {
    const std::size_t start = position;
    NextCharacter(text, position);
    return text.substr(start, position - start);
}

// The character behind the first "&" that is no half of "&&"; empty for none.
std::string_view AccessKeyOf(std::string_view caption) {
    std::size_t at = 0;
    while ((at = caption.find('&', at)) != caption.npos && at + 1 < caption.size()) {
        if (caption[at + 1] != '&') return CharacterAt(caption, ++at);
        at += 2;
    }
    return {};
}

bool IsBlankOrPunctuation(std::string_view character) {
    constexpr std::string_view kNoKeys = " !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
    return kNoKeys.find(character) != kNoKeys.npos;
}

}  // namespace

std::string MakeAcceleratorCaption(const CommandBarControls& controls, std::string_view caption) {
    try {
        std::set<std::string> used;
        for (int i = 1; i <= controls.Count(); ++i)
            used.insert(Folded(AccessKeyOf(controls.Item(i)->Caption())));
        for (std::size_t next = 0; next < caption.size();) {
            const std::size_t start = next;
            const std::string_view character = CharacterAt(caption, next);
            if (IsBlankOrPunctuation(character) || used.contains(Folded(character))) continue;
            return std::string(caption.substr(0, start)) + '&' + std::string(caption.substr(start));
        }
    } catch (const std::exception&) {
        // A command without access key is better than none.
    }
    return std::string(caption);
}

}  // namespace morpho
