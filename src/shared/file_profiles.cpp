#include "shared/file_profiles.h"

#include <optional>

#include "formats/profile_text.h"
#include "platform/run_time_error.h"

namespace morpho {

// A missing file reads as an empty one.
std::string DiskProfileFiles::BytesOf(std::string_view file) const {
    const auto entry = files_.Find(file);
    return entry && !entry->IsFolder() ? files_.ReadFile(file) : std::string();
}

std::string DiskProfileFiles::ReadString(std::string_view file, std::string_view section,
                                         std::string_view key, std::string_view fallback,
                                         std::size_t maxChars) const {
    std::optional<std::string> value;
    try {
        value =
            ProfileText(BytesOf(file)).Value(codePage_.ToBytes(section), codePage_.ToBytes(key));
    } catch (const RunTimeError&) {
        // A file that cannot be read has no values.
    }
    if (!value) return std::string(fallback.substr(0, maxChars));
    return codePage_.ToText(std::string_view(*value).substr(0, maxChars));
}

void DiskProfileFiles::WriteString(std::string_view file, std::string_view section,
                                   std::string_view key, std::string_view value) {
    ProfileText text(BytesOf(file));
    text.SetValue(codePage_.ToBytes(section), codePage_.ToBytes(key), codePage_.ToBytes(value));
    files_.WriteFile(file, text.Bytes());
}

void DiskProfileFiles::WriteSection(
    std::string_view file, std::string_view section,
    const std::vector<std::pair<std::string, std::string>>& entries) {
    ProfileText::Entries inBytes;
    for (const auto& [key, value] : entries)
        inBytes.emplace_back(codePage_.ToBytes(key), codePage_.ToBytes(value));
    ProfileText text(BytesOf(file));
    text.SetSection(codePage_.ToBytes(section), inBytes);
    files_.WriteFile(file, text.Bytes());
}

void DiskProfileFiles::Flush(std::string_view) {}

}  // namespace morpho
