#include "support/fake_profile_files.h"

#include <sstream>

#include "platform/ignoring_case.h"
#include "shared/mod_shared_code.h"

namespace morpho::test {

namespace {

bool IsHeader(const std::string& line) {
    return Trim(line).starts_with('[');
}

bool IsHeaderOf(const std::string& line, std::string_view section) {
    return EqualIgnoringCase(Trim(line), '[' + std::string(section) + ']');
}

bool IsEntryOf(const std::string& line, std::string_view key) {
    const auto sign = line.find('=');
    return sign != std::string::npos && EqualIgnoringCase(Trim(line.substr(0, sign)), Trim(key));
}

// First line of the section's contents and the line behind its last entry; both are the end without
// such a section.
std::pair<std::size_t, std::size_t> Contents(const std::vector<std::string>& lines,
                                             std::string_view section) {
    std::size_t begin = 0;
    while (begin < lines.size() && !IsHeaderOf(lines[begin], section))
        ++begin;
    if (begin == lines.size()) return {begin, begin};
    std::size_t end = ++begin;
    while (end < lines.size() && !IsHeader(lines[end]))
        ++end;
    while (end > begin && Trim(lines[end - 1]).empty())
        --end;
    return {begin, end};
}

bool HasSection(const std::vector<std::string>& lines, std::string_view section) {
    const auto begin = Contents(lines, section).first;
    return begin > 0 && IsHeaderOf(lines[begin - 1], section);
}

std::string FirstCharacters(const std::string& text, std::size_t count) {
    std::size_t at = 0;
    while (at < text.size() && ((text[at] & 0xC0) == 0x80 || count-- > 0))
        ++at;
    return text.substr(0, at);
}

}  // namespace

FakeProfileFiles::Lines FakeProfileFiles::Read(std::string_view file) const {
    if (!files_.Find(file)) return {};
    std::istringstream text(codePage_.ToText(files_.ReadFile(file)));
    Lines lines;
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

void FakeProfileFiles::Write(std::string_view file, const Lines& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    files_.WriteFile(file, codePage_.ToBytes(text));
}

std::string FakeProfileFiles::ReadString(std::string_view file, std::string_view section,
                                         std::string_view key, std::string_view fallback,
                                         std::size_t maxChars) const {
    const Lines lines = Read(file);
    const auto [begin, end] = Contents(lines, section);
    for (std::size_t i = begin; i < end; ++i) {
        if (!IsEntryOf(lines[i], key)) continue;
        std::string value(Trim(std::string_view(lines[i]).substr(lines[i].find('=') + 1)));
        const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                            (value.front() == '"' || value.front() == '\'');
        if (quoted) value = value.substr(1, value.size() - 2);
        return FirstCharacters(value, maxChars);
    }
    return FirstCharacters(std::string(fallback), maxChars);
}

void FakeProfileFiles::WriteString(std::string_view file, std::string_view section,
                                   std::string_view key, std::string_view value) {
    Lines lines = Read(file);
    if (!HasSection(lines, section)) lines.push_back('[' + std::string(section) + ']');
    const auto [begin, end] = Contents(lines, section);
    std::size_t at = begin;
    while (at < end && !IsEntryOf(lines[at], key))
        ++at;
    if (at == end) lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(end), std::string());
    lines[at] = std::string(key) + '=' + std::string(value);
    Write(file, lines);
}

void FakeProfileFiles::WriteSection(
    std::string_view file, std::string_view section,
    const std::vector<std::pair<std::string, std::string>>& entries) {
    Lines lines = Read(file);
    if (!HasSection(lines, section)) lines.push_back('[' + std::string(section) + ']');
    const auto [begin, end] = Contents(lines, section);
    const auto first = lines.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto at = lines.erase(first, first + static_cast<std::ptrdiff_t>(end - begin));
    Lines added;
    for (const auto& [key, value] : entries)
        added.push_back(key + '=' + value);
    lines.insert(at, added.begin(), added.end());
    Write(file, lines);
}

}  // namespace morpho::test
