#include "text/utf8.h"

namespace morpho {

namespace {

bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDFFF;
}

bool IsHighSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDBFF;
}

bool IsLowSurrogate(char32_t character) {
    return character >= 0xDC00 && character <= 0xDFFF;
}

unsigned char ByteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

char32_t UnitAt(std::string_view bytes, std::size_t position) {
    return static_cast<char32_t>(ByteAt(bytes, position) | ByteAt(bytes, position + 1) << 8);
}

void AppendUnit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

// The number of bytes that follow this lead byte, and the bits it carries; -1 when it is not a lead
// byte. 0xC0 and 0xC1 would be overlong, 0xF5 and up lie beyond Unicode.
int FollowingBytes(unsigned char lead, char32_t& bits) {
    if (lead < 0x80) return bits = lead, 0;
    if (lead >= 0xC2 && lead <= 0xDF) return bits = lead & 0x1FU, 1;
    if (lead >= 0xE0 && lead <= 0xEF) return bits = lead & 0x0FU, 2;
    if (lead >= 0xF0 && lead <= 0xF4) return bits = lead & 0x07U, 3;
    return -1;
}

}  // namespace

std::optional<char32_t> NextCharacter(std::string_view text, std::size_t& position) {
    const std::size_t start = position++;
    char32_t character = 0;
    const int following = FollowingBytes(ByteAt(text, start), character);
    if (following < 0 || text.size() - start <= static_cast<std::size_t>(following)) return {};
    for (int i = 1; i <= following; ++i) {
        const unsigned char byte = ByteAt(text, start + i);
        if ((byte & 0xC0U) != 0x80U) return {};
        character = character << 6 | (byte & 0x3FU);
    }
    const bool overlong =
        (following == 2 && character < 0x800) || (following == 3 && character < 0x10000);
    if (overlong || IsSurrogate(character) || character > 0x10FFFF) return {};
    position = start + 1 + following;
    return character;
}

void AppendCharacter(std::string& text, char32_t character) {
    if (IsSurrogate(character) || character > 0x10FFFF) character = kReplacementCharacter;
    const auto tail = [&](int shift) {
        text += static_cast<char>(0x80U | (character >> shift & 0x3FU));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0U | character >> 12);
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0U | character >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

bool IsUtf8(std::string_view text) {
    for (std::size_t position = 0; position < text.size();) {
        if (!NextCharacter(text, position)) return false;
    }
    return true;
}

std::string ValidUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        AppendCharacter(valid, NextCharacter(text, position).value_or(kReplacementCharacter));
    }
    return valid;
}

std::string Utf8FromUtf16(std::string_view bytes) {
    std::string text;
    for (std::size_t position = 0; position + 1 < bytes.size(); position += 2) {
        char32_t unit = UnitAt(bytes, position);
        if (IsHighSurrogate(unit) && position + 3 < bytes.size() &&
            IsLowSurrogate(UnitAt(bytes, position + 2))) {
            position += 2;
            unit = 0x10000 + ((unit - 0xD800) << 10) + (UnitAt(bytes, position) - 0xDC00);
        }
        AppendCharacter(text, unit);
    }
    return text;
}

std::string Utf16FromUtf8(std::string_view text) {
    std::string bytes;
    for (std::size_t position = 0; position < text.size();) {
        char32_t character = NextCharacter(text, position).value_or(kReplacementCharacter);
        if (character >= 0x10000) {
            character -= 0x10000;
            AppendUnit(bytes, 0xD800 + (character >> 10));
            character = 0xDC00 + (character & 0x3FF);
        }
        AppendUnit(bytes, character);
    }
    return bytes;
}

}  // namespace morpho
