#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace morpho {

// The text of a profile (".inf") file, in the bytes of its code page: sections "[name]" with lines
// "key=value". Names are compared without regard to case; of doubled ones the first counts. Lines
// that are not touched stay byte for byte, with their order, comments (";") and line ends.
class ProfileText {
  public:
    using Entries = std::vector<std::pair<std::string, std::string>>;

    explicit ProfileText(std::string_view bytes);

    // Without blanks and one pair of quotes around it.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    // Line breaks in names and values become blanks, for they would begin a new line.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);
    // Comments and empty lines of the section stay.
    void SetSection(std::string_view section, const Entries& entries);

    std::string Bytes() const;

  private:
    // Lines [begin, end) below a section's header, or its place-to-be.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
        bool found = false;
    };

    Range FindSection(std::string_view section) const;
    std::optional<std::size_t> FindKey(const Range& range, std::string_view key) const;
    Range FindOrAddSection(std::string_view section);
    void InsertLine(std::size_t index, const std::string& text);
    std::string LineEnd() const;

    std::string byteOrderMark_;
    std::vector<std::string> lines_;  // each with its line end
};

}  // namespace morpho
