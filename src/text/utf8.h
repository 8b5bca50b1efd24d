#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace morpho {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// Reads the character at `position`, which lies inside the text, and moves behind it. When no valid
// UTF-8 starts there, returns nothing and moves by one byte.
std::optional<char32_t> NextCharacter(std::string_view text, std::size_t& position);

// Appends the character; one that is no Unicode scalar value becomes the replacement character.
void AppendCharacter(std::string& text, char32_t character);

bool IsUtf8(std::string_view text);

// The text with each byte that is not UTF-8 replaced by the replacement character.
std::string ValidUtf8(std::string_view text);

// UTF-16, least significant byte first, as UTF-8; half a surrogate pair becomes the replacement
// character and an odd last byte is dropped.
std::string Utf8FromUtf16(std::string_view bytes);
std::string Utf16FromUtf8(std::string_view text);

}  // namespace morpho
