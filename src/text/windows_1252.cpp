#include "text/windows_1252.h"

#include <algorithm>
#include <array>

#include "text/utf8.h"

namespace morpho {

namespace {

// The characters of the bytes 0x80 to 0x9F, as in the code page's table of the Unicode Consortium.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool InTable(char32_t byte) {
    return byte >= 0x80 && byte <= 0x9F;
}

// The byte of the character, or -1.
int ByteOf(char32_t character) {
    if (character <= 0xFF && !InTable(character)) return static_cast<int>(character);
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    if (found == kUpperControls.end()) return -1;
    return 0x80 + static_cast<int>(found - kUpperControls.begin());
}

}  // namespace

std::string TextFromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendCharacter(text, InTable(byte) ? kUpperControls[byte - 0x80U] : byte);
    }
    return text;
}

std::string Windows1252FromText(std::string_view text,
                                const std::function<std::string(char32_t)>& missing) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = NextCharacter(text, position).value_or(kReplacementCharacter);
        const int byte = ByteOf(character);
        if (byte >= 0) {
            bytes += static_cast<char>(byte);
        } else {
            bytes += missing ? missing(character) : "?";
        }
    }
    return bytes;
}

std::string TextOfUnknownCoding(std::string_view bytes) {
    return IsUtf8(bytes) ? std::string(bytes) : TextFromWindows1252(bytes);
}

}  // namespace morpho
