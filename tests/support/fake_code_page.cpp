#include "support/fake_code_page.h"

#include <array>

namespace morpho::test {

namespace {

// What the bytes 0x80 to 0x9F stand for (Windows-1252 as in Unicode's mapping tables).
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t Character(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte;
}

void AppendUtf8(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Takes the first character off a well-formed UTF-8 text.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t c = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length && i < text.size(); ++i)
        c = (c << 6) | (static_cast<unsigned char>(text[i]) & 0x3Fu);
    text.remove_prefix(std::min(length, text.size()));
    return c;
}

}  // namespace

std::string FakeCodePage::ToText(std::string_view bytes) const {
    std::string text;
    for (const char byte : bytes)
        AppendUtf8(text, Character(static_cast<unsigned char>(byte)));
    return text;
}

std::string FakeCodePage::ToBytes(std::string_view text,
                                  const std::function<std::string(char32_t)>& missing) const {
    std::string bytes;
    while (!text.empty()) {
        const char32_t c = TakeCharacter(text);
        int byte = 0;
        while (byte < 256 && Character(static_cast<unsigned char>(byte)) != c)
            ++byte;
        if (byte < 256) {
            bytes += static_cast<char>(byte);
        } else {
            bytes += missing ? missing(c) : "?";
        }
    }
    return bytes;
}

}  // namespace morpho::test
