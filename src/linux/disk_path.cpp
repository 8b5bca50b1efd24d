#include "linux/disk_path.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <vector>

#include "text/ignoring_case.h"
#include "text/utf8.h"

namespace morpho {

namespace {

constexpr char32_t kByteBase = 0xF700;

bool StandsForByte(char32_t character) {
    return character == kByteBase + '\\' ||
           (character >= kByteBase + 0x80 && character <= kByteBase + 0xFF);
}

// The names of the path below "Z:\", as bytes.
std::optional<std::vector<std::string>> NamesOf(std::string_view path) {
    if (!StartsWithIgnoringAsciiCase(path, "Z:") || path.find('\0') != path.npos) return {};
    path.remove_prefix(2);
    if (!path.empty() && path[0] != '\\' && path[0] != '/') return {};
    std::vector<std::string> names;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        const std::string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name == "..") {
            if (!names.empty()) names.pop_back();
        } else if (!name.empty() && name != ".") {
            names.push_back(NameToDisk(name));
        }
    }
    return names;
}

// The path that the first `count` names make.
std::string PathOf(const std::vector<std::string>& names, std::size_t count) {
    std::string path = "/";
    for (std::size_t i = 0; i < count; ++i)
        path = JoinDiskPath(path, names[i]);
    return path;
}

bool Exists(const std::string& diskPath) {
    struct stat status = {};
    return ::lstat(diskPath.c_str(), &status) == 0;
}

// The entry spelled so, else the first in byte order that differs in letter case only.
std::optional<std::string> EntryIgnoringCase(const std::string& folder, const std::string& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), ::closedir);
    if (!entries) return {};
    std::optional<std::string> found;
    while (const dirent* entry = ::readdir(entries.get())) {
        const std::string_view candidate = entry->d_name;
        if (candidate == name) return name;
        if (!EqualIgnoringCase(candidate, name)) continue;
        if (!found || candidate < *found) found = candidate;
    }
    return found;
}

}  // namespace

std::string ToWindowsPath(std::string_view diskPath) {
    std::string path = "Z:";
    std::size_t position = 0;
    while (position < diskPath.size()) {
        const std::size_t end = std::min(diskPath.find('/', position), diskPath.size());
        if (end > position) path += '\\' + NameFromDisk(diskPath.substr(position, end - position));
        position = end + 1;
    }
    return path.size() > 2 ? path : "Z:\\";
}

std::optional<std::string> ToDiskPath(std::string_view windowsPath) {
    const auto names = NamesOf(windowsPath);
    if (!names) return {};
    return PathOf(*names, names->size());
}

std::optional<std::string> FindOnDisk(std::string_view windowsPath) {
    const auto names = NamesOf(windowsPath);
    if (!names) return {};
    // Nearly every path exists as spelled, which one look at its end tells.
    std::size_t asSpelled = names->size();
    while (asSpelled > 0 && !Exists(PathOf(*names, asSpelled)))
        --asSpelled;
    std::string path = PathOf(*names, asSpelled);
    bool exists = true;
    for (std::size_t i = asSpelled; i < names->size(); ++i) {
        const auto actual = exists ? EntryIgnoringCase(path, (*names)[i]) : std::nullopt;
        exists = actual.has_value();
        path = JoinDiskPath(path, actual.value_or((*names)[i]));
    }
    return path;
}

std::string NameFromDisk(std::string_view diskName) {
    std::string name;
    const auto appendAsBytes = [&name](std::string_view bytes) {
        for (const char byte : bytes)
            AppendCharacter(name, kByteBase + static_cast<unsigned char>(byte));
    };
    for (std::size_t position = 0; position < diskName.size();) {
        const std::size_t start = position;
        const auto character = NextCharacter(diskName, position);
        const std::string_view bytes = diskName.substr(start, position - start);
        if (!character || *character == '\\' || StandsForByte(*character)) {
            appendAsBytes(bytes);
        } else {
            name.append(bytes);
        }
    }
    return name;
}

std::string NameToDisk(std::string_view name) {
    std::string diskName;
    for (std::size_t position = 0; position < name.size();) {
        const std::size_t start = position;
        const auto character = NextCharacter(name, position);
        if (character && StandsForByte(*character)) {
            diskName += static_cast<char>(*character - kByteBase);
        } else {
            diskName.append(name.substr(start, position - start));
        }
    }
    return diskName;
}

bool IsEntryName(std::string_view diskName) {
    return !diskName.empty() && diskName != "." && diskName != ".." &&
           diskName.find('/') == diskName.npos && diskName.find('\0') == diskName.npos;
}

std::string ParentFolder(std::string_view diskPath) {
    const std::size_t slash = diskPath.rfind('/');
    return slash == 0 || slash == diskPath.npos ? "/" : std::string(diskPath.substr(0, slash));
}

std::string_view LastName(std::string_view diskPath) {
    return diskPath.substr(diskPath.rfind('/') + 1);
}

std::string JoinDiskPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with('/')) path += '/';
    return path.append(name);
}

}  // namespace morpho
