#include "shared/mod_shared_code.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/file_system.h"
#include "platform/run_time_error.h"
#include "platform/shell.h"
#include "text/ignoring_case.h"
#include "text/trim.h"

namespace morpho {

namespace {

constexpr int kShowNormal = 1;

std::string WithBackslashes(std::string_view path) {
    std::string result(path);
    std::replace(result.begin(), result.end(), '/', '\\');
    return result;
}

void ResolveParents(std::string& path) {
    constexpr std::string_view kParent = "\\..";
    for (auto at = path.find(kParent); at != std::string::npos; at = path.find(kParent)) {
        const auto folder = at == 0 ? std::string::npos : path.rfind('\\', at - 1);
        if (folder == std::string::npos) return;  // no folder left to remove
        path.erase(folder, at + kParent.size() - folder);
    }
}

// Length in bytes of the UTF-8 character that the text begins with.
std::size_t CharacterLength(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        ++length;
    return length;
}

// Whether the name matches the pattern, both folded; "*" stands for any characters, "?" for one.
bool MatchesPattern(std::string_view name, std::string_view pattern) {
    std::string_view retryName;  // what follows the last "*", for a retry
    std::string_view retryPattern;
    bool canRetry = false;
    while (!name.empty() || !pattern.empty()) {
        if (pattern.starts_with('*')) {
            pattern.remove_prefix(1);
            retryName = name;
            retryPattern = pattern;
            canRetry = true;
        } else if (!name.empty() && pattern.starts_with('?')) {
            name.remove_prefix(CharacterLength(name));
            pattern.remove_prefix(1);
        } else if (!name.empty() && !pattern.empty() && name.front() == pattern.front()) {
            name.remove_prefix(1);
            pattern.remove_prefix(1);
        } else if (canRetry && !retryName.empty()) {
            retryName.remove_prefix(1);
            name = retryName;
            pattern = retryPattern;
        } else {
            return false;
        }
    }
    return true;
}

bool IsNormalFile(const FileEntry& entry) {
    return (entry.attributes & (kFolderAttribute | kHiddenAttribute | kSystemAttribute)) == 0;
}

}  // namespace

int GetImageFileType(std::string_view name) {
    constexpr std::array<std::pair<std::string_view, int>, 5> kTypes = {{{"gif", kGifFile},
                                                                         {"jpg", kJpegFile},
                                                                         {"jpeg", kJpegFile},
                                                                         {"bmp", kBmpFile},
                                                                         {"png", kPngFile}}};
    const auto dot = name.rfind('.');
    if (dot == std::string_view::npos) return kNoImageFile;
    const std::string extension = AsciiLowered(name.substr(dot + 1));
    const auto type = std::find_if(kTypes.begin(), kTypes.end(),
                                   [&](const auto& known) { return known.first == extension; });
    return type == kTypes.end() ? kNoImageFile : type->second;
}

bool IsJpegFile(std::string_view name) {
    return GetImageFileType(name) == kJpegFile;
}

bool IsValidFileName(std::string_view name) {
    const std::string_view trimmed = Trim(name);
    return !trimmed.empty() && trimmed.front() != '.' &&
           trimmed.find_first_of("\\/#:*?<>|\"") == std::string_view::npos;
}

std::string JoinPath(std::string_view base, std::vector<std::string>& names) {
    std::string path = WithBackslashes(base);
    for (std::string& name : names) {
        name = WithBackslashes(name);
        if (name.starts_with('\\')) name.erase(0, 1);
        if (!path.ends_with('\\')) path += '\\';
        path += name;
    }
    ResolveParents(path);
    return path;
}

std::string JoinPath(std::string_view base, std::initializer_list<std::string_view> names) {
    std::vector<std::string> copies(names.begin(), names.end());
    return JoinPath(base, copies);
}

void TrimAtNul(std::string& text, bool trimFirst) {
    if (trimFirst) text = Trim(text);
    text.resize(std::min(text.find('\0'), text.size()));
}

std::string FormatText(std::string_view format, const std::vector<std::string>& values) {
    std::string text(format);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string placeholder = '%' + std::to_string(i + 1);
        for (auto at = text.find(placeholder); at != std::string::npos;
             at = text.find(placeholder, at + values[i].size()))
            text.replace(at, placeholder.size(), values[i]);
    }
    return text;
}

int ShellOpen(Shell& shell, std::string_view file, std::string_view parameters) {
    return shell.Open("open", file, parameters, kShowNormal);
}

std::string FileNameOf(std::string_view path) {
    const auto separator = path.find_last_of("\\/");
    return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string WithSeparator(std::string_view folder) {
    std::string path(folder);
    if (!path.ends_with('\\')) path += '\\';
    return path;
}

bool FolderExists(const FileSystem& files, std::string_view path) {
    const auto entry = files.Find(path);
    return entry && entry->IsFolder();
}

bool AnyFileMatches(const FileSystem& files, std::string_view path) {
    const std::string name = FileNameOf(path);
    if (!name.empty() && name.find_first_of("*?") == std::string::npos) {
        const auto entry = files.Find(path);
        return entry && IsNormalFile(*entry);
    }
    const std::string_view folder = path.substr(0, path.size() - name.size());
    if (!FolderExists(files, folder)) return false;
    // "*.*" means all names, with a dot or without.
    const std::string pattern = name.empty() || name == "*.*" ? "*" : Folded(name);
    try {
        const auto entries = files.List(folder);
        return std::any_of(entries.begin(), entries.end(), [&](const FileEntry& entry) {
            return IsNormalFile(entry) && MatchesPattern(Folded(entry.name), pattern);
        });
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace morpho
