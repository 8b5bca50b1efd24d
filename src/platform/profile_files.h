#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace morpho {

// The system's profile (".inf", ".ini") files. Sections and keys are compared without regard to
// case, texts are UTF-8 here and in the system's code page on disk. Writing throws RunTimeError
// when it fails.
class ProfileFiles {
  public:
    virtual ~ProfileFiles() = default;

    // The first value of the key in the first section of that name, without blanks and one pair of
    // quotes around it, at most `maxChars` characters; `fallback` when the file, section or key is
    // missing.
    virtual std::string ReadString(std::string_view file, std::string_view section,
                                   std::string_view key, std::string_view fallback,
                                   std::size_t maxChars) const = 0;
    virtual void WriteString(std::string_view file, std::string_view section, std::string_view key,
                             std::string_view value) = 0;
    // Replaces all entries of the section by `entries` (key, value), creating the section when
    // missing.
    virtual void WriteSection(std::string_view file, std::string_view section,
                              const std::vector<std::pair<std::string, std::string>>& entries) = 0;
    // Hands everything written to this file over to the disk.
    virtual void Flush(std::string_view file) = 0;
};

}  // namespace morpho
