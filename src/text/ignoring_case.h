#pragma once

#include <string>
#include <string_view>

namespace morpho {

// Comparing and searching UTF-8 texts without regard to case, for names and markup: ASCII letters
// and the accented ones of Latin-1, which is what old webs hold.

// The text with these letters in lower case; its length in bytes stays.
inline std::string Lowered(std::string_view text) {
    std::string lower(text);
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const auto byte = static_cast<unsigned char>(lower[i]);
        const bool ascii = byte >= 'A' && byte <= 'Z';
        // U+00C0 to U+00DE are 0xC3 and a byte of 0x80 to 0x9E; 0x97 is the multiplication sign.
        const bool accented = i > 0 && static_cast<unsigned char>(lower[i - 1]) == 0xC3 &&
                              byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        if (ascii || accented) lower[i] = static_cast<char>(byte + 0x20);
    }
    return lower;
}

inline bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && Lowered(a) == Lowered(b);
}

inline bool StartsWithIgnoringCase(std::string_view text, std::string_view start) {
    return EqualIgnoringCase(text.substr(0, start.size()), start);
}

inline bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
    return Lowered(text).find(Lowered(part)) != std::string::npos;
}

// The text with every occurrence of `from` replaced by `to`.
inline std::string ReplacedIgnoringCase(std::string_view text, std::string_view from,
                                        std::string_view to) {
    const std::string lowerText = Lowered(text);
    const std::string lowerFrom = Lowered(from);
    std::string result;
    std::size_t done = 0;
    if (!from.empty()) {
        for (auto hit = lowerText.find(lowerFrom); hit != std::string::npos;
             hit = lowerText.find(lowerFrom, done)) {
            result.append(text, done, hit - done).append(to);
            done = hit + from.size();
        }
    }
    return result.append(text.substr(done));
}

}  // namespace morpho
