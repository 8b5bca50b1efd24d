#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morpho {

// Text of a page's attribute or of an address, with its character references ("&amp;", "&#252;")
// resolved; unknown ones stay.
std::string DecodedReferences(std::string_view text);

// UTF-8 text for an attribute's value, all in ASCII, so that it holds in a page of any coding and
// between quotes of any kind, or none.
std::string EncodedReferences(std::string_view text);

// The text of one name in an address, with "%41" resolved; what is no escape stays.
std::string DecodedPercents(std::string_view text);

// The escape of one byte in an address, "%41".
std::string PercentEscape(char c);

// A name for an address, all in ASCII; everything that could end the address is escaped.
std::string EncodedPercents(std::string_view name);

// A page in a form that has ASCII in it. UTF-16 pages, told by their byte order mark, are
// converted to UTF-8; all others stay as they are.
class PageText {
  public:
    explicit PageText(std::string_view bytes);

    const std::string& Text() const { return text_; }
    // The page with this text in its place. Nothing for a page whose bytes the conversion loses.
    std::optional<std::string> BytesOf(std::string_view text) const;

  private:
    enum class Coding { kOther, kLittleEndian, kBigEndian };

    std::string Encoded(std::string_view text) const;

    Coding coding_ = Coding::kOther;
    std::string text_;
    bool isFaithful_ = true;
};

}  // namespace morpho
