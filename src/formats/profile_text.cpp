#include "formats/profile_text.h"

#include <algorithm>

#include "text/ignoring_case.h"
#include "text/trim.h"

namespace morpho {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Unquoted(std::string_view text) {
    const bool quoted = text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
                        text.front() == text.back();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

bool IsComment(std::string_view line) {
    return Trim(line, kWhiteSpace).starts_with(';');
}

// The name in a section's header; nothing for another line.
std::optional<std::string_view> HeaderName(std::string_view line) {
    const std::string_view text = Trim(line, kWhiteSpace);
    const std::size_t close = text.find(']');
    if (!text.starts_with('[') || close == text.npos) return {};
    return Trim(text.substr(1, close - 1), kWhiteSpace);
}

// The key of a "key=value" line; nothing for another line.
std::optional<std::string_view> KeyName(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == line.npos || IsComment(line)) return {};
    return Trim(line.substr(0, equals), kWhiteSpace);
}

std::string_view EndOf(std::string_view line) {
    if (line.ends_with("\r\n")) return line.substr(line.size() - 2);
    if (line.ends_with('\n') || line.ends_with('\r')) return line.substr(line.size() - 1);
    return {};
}

std::string OnOneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return line;
}

std::string EntryText(std::string_view key, std::string_view value) {
    return OnOneLine(key) + '=' + OnOneLine(value);
}

}  // namespace

ProfileText::ProfileText(std::string_view bytes) {
    if (bytes.starts_with(kByteOrderMark)) {
        byteOrderMark_ = kByteOrderMark;
        bytes.remove_prefix(kByteOrderMark.size());
    }
    while (!bytes.empty()) {
        std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size() - 1);
        if (bytes.substr(end).starts_with("\r\n")) ++end;
        lines_.emplace_back(bytes.substr(0, end + 1));
        bytes.remove_prefix(end + 1);
    }
}

std::optional<std::string> ProfileText::Value(std::string_view section,
                                              std::string_view key) const {
    const auto line = FindKey(FindSection(section), key);
    if (!line) return {};
    const std::string_view text = lines_[*line];
    return std::string(Unquoted(Trim(text.substr(text.find('=') + 1), kWhiteSpace)));
}

void ProfileText::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    const Range range = FindOrAddSection(section);
    if (const auto line = FindKey(range, key)) {
        std::string& text = lines_[*line];
        text = text.substr(0, text.find('=') + 1) + OnOneLine(value) + std::string(EndOf(text));
        return;
    }
    std::size_t place = range.end;
    while (place > range.begin && Trim(lines_[place - 1], kWhiteSpace).empty())
        --place;
    InsertLine(place, EntryText(key, value));
}

void ProfileText::SetSection(std::string_view section, const Entries& entries) {
    const Range range = FindOrAddSection(section);
    const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(range.begin);
    const auto end = lines_.begin() + static_cast<std::ptrdiff_t>(range.end);
    const auto isEntry = [](const std::string& line) {
        return !IsComment(line) && !Trim(line, kWhiteSpace).empty();
    };
    lines_.erase(std::remove_if(begin, end, isEntry), end);
    std::size_t place = range.begin;
    for (const auto& [key, value] : entries)
        InsertLine(place++, EntryText(key, value));
}

std::string ProfileText::Bytes() const {
    std::string bytes = byteOrderMark_;
    for (const std::string& line : lines_)
        bytes += line;
    return bytes;
}

ProfileText::Range ProfileText::FindSection(std::string_view section) const {
    const std::string_view wanted = Trim(section, kWhiteSpace);
    Range range{lines_.size(), lines_.size(), false};
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto name = HeaderName(lines_[i]);
        if (!name) continue;
        if (range.found) {
            range.end = i;
            break;
        }
        if (EqualIgnoringAsciiCase(*name, wanted)) range = {i + 1, lines_.size(), true};
    }
    return range;
}

std::optional<std::size_t> ProfileText::FindKey(const Range& range, std::string_view key) const {
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const auto name = KeyName(lines_[i]);
        if (name && EqualIgnoringAsciiCase(*name, Trim(key, kWhiteSpace))) return i;
    }
    return {};
}

ProfileText::Range ProfileText::FindOrAddSection(std::string_view section) {
    const Range range = FindSection(section);
    if (range.found) return range;
    InsertLine(lines_.size(), '[' + OnOneLine(section) + ']');
    return {lines_.size(), lines_.size(), true};
}

void ProfileText::InsertLine(std::size_t index, const std::string& text) {
    const std::string end = LineEnd();
    if (index > 0 && EndOf(lines_[index - 1]).empty()) lines_[index - 1] += end;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(index), text + end);
}

// That of the first line; a new file gets the system's own.
std::string ProfileText::LineEnd() const {
    const std::string_view end = lines_.empty() ? std::string_view() : EndOf(lines_.front());
    return end.empty() ? "\r\n" : std::string(end);
}

}  // namespace morpho
