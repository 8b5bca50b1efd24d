#include "formats/web_text.h"

#include <array>
#include <utility>

#include "text/ascii.h"
#include "text/ignoring_case.h"
#include "text/parsed_number.h"
#include "text/utf8.h"

namespace morpho {

namespace {

// The longest reference that is looked for, "&#1114111;" with zeros to spare.
constexpr std::size_t kMaxReference = 16;

constexpr std::array<std::pair<std::string_view, char32_t>, 6> kNamed = {
    {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}, {"nbsp", 0xA0}}};

// What the reference between "&" and ";" means.
std::optional<char32_t> ReferencedCharacter(std::string_view reference) {
    for (const auto& [name, character] : kNamed) {
        if (EqualIgnoringAsciiCase(name, reference)) return character;
    }
    if (!reference.starts_with('#')) return {};
    reference.remove_prefix(1);
    const bool hexadecimal = reference.starts_with('x') || reference.starts_with('X');
    const auto number =
        ParsedNumber<std::uint32_t>(reference.substr(hexadecimal), hexadecimal ? 16 : 10);
    return number && *number != 0 ? std::optional<char32_t>(*number) : std::nullopt;
}

std::string ByteSwapped(std::string bytes) {
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        std::swap(bytes[i], bytes[i + 1]);
    return bytes;
}

}  // namespace

std::string DecodedReferences(std::string_view text) {
    std::string decoded;
    while (!text.empty()) {
        const std::size_t start = std::min(text.find('&'), text.size());
        decoded.append(text.substr(0, start));
        text.remove_prefix(start);
        const std::size_t end = text.substr(0, kMaxReference).find(';');
        const auto character =
            end == text.npos ? std::nullopt : ReferencedCharacter(text.substr(1, end - 1));
        if (character) {
            AppendCharacter(decoded, *character);
            text.remove_prefix(end + 1);
        } else if (!text.empty()) {
            decoded += text.front();
            text.remove_prefix(1);
        }
    }
    return decoded;
}

std::string EncodedReferences(std::string_view text) {
    std::string encoded;
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = NextCharacter(text, position).value_or(kReplacementCharacter);
        const bool plain = character > ' ' && character < 0x7F &&
                           std::string_view("&<>\"'`=").find(static_cast<char>(character)) ==
                               std::string_view::npos;
        if (plain) {
            encoded += static_cast<char>(character);
        } else {
            encoded += "&#" + std::to_string(static_cast<std::uint32_t>(character)) + ";";
        }
    }
    return encoded;
}

std::string DecodedPercents(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = text[i] == '%' && i + 2 < text.size()
                              ? ParsedNumber<unsigned char>(text.substr(i + 1, 2), 16)
                              : std::nullopt;
        decoded += byte ? static_cast<char>(*byte) : text[i];
        if (byte) i += 2;
    }
    return decoded;
}

std::string PercentEscape(char c) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
}

std::string EncodedPercents(std::string_view name) {
    std::string encoded;
    for (const char c : name) {
        if (IsLetter(c) || IsDigit(c) ||
            std::string_view("-._~!$@+").find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            encoded += PercentEscape(c);
        }
    }
    return encoded;
}

PageText::PageText(std::string_view bytes) : text_(bytes) {
    if (bytes.starts_with("\xFF\xFE")) coding_ = Coding::kLittleEndian;
    if (bytes.starts_with("\xFE\xFF")) coding_ = Coding::kBigEndian;
    if (coding_ == Coding::kOther) return;
    text_ = Utf8FromUtf16(coding_ == Coding::kBigEndian ? ByteSwapped(text_) : text_);
    isFaithful_ = Encoded(text_) == bytes;
}

std::string PageText::Encoded(std::string_view text) const {
    if (coding_ == Coding::kOther) return std::string(text);
    const std::string bytes = Utf16FromUtf8(text);
    return coding_ == Coding::kBigEndian ? ByteSwapped(bytes) : bytes;
}

std::optional<std::string> PageText::BytesOf(std::string_view text) const {
    return isFaithful_ ? std::optional(Encoded(text)) : std::nullopt;
}

}  // namespace morpho
