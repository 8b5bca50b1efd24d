#include "formats/web_address.h"

#include <algorithm>
#include <vector>

#include "formats/web_text.h"
#include "text/ascii.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"

namespace morpho {

namespace {

constexpr std::string_view kSeparators = "/\\";

bool IsInScheme(char c) {
    return IsLetter(c) || IsDigit(c) || c == '+' || c == '-' || c == '.';
}

std::string Escaped(std::string_view text, std::string_view special) {
    std::string escaped;
    for (const char c : text) {
        if (special.find(c) == special.npos && !IsControl(c)) {
            escaped += c;
        } else {
            escaped += PercentEscape(c);
        }
    }
    return escaped;
}

std::string_view WithoutQuery(std::string_view url) {
    return url.substr(0, url.find_first_of("?#"));
}

// The length of what no ".." leads out of: "http://host", "file:///Z:".
std::size_t RootLength(std::string_view address) {
    std::size_t end = IsAbsoluteAddress(address) ? address.find(':') + 1 : 0;
    if (address.substr(end).starts_with("//"))
        end = std::min(address.find('/', end + 2), address.size());
    const std::string_view path = address.substr(end);
    const bool isDrive = path.size() > 2 && path[0] == '/' && IsLetter(path[1]) && path[2] == ':';
    return isDrive && StartsWithIgnoringAsciiCase(address, "file:") ? end + 3 : end;
}

// A path that begins with "/", without "." and "..".
std::string WithoutDots(std::string_view path) {
    std::vector<std::string_view> names;
    bool endsInFolder = true;
    while (!path.empty()) {
        path.remove_prefix(1);
        const std::string_view name = path.substr(0, path.find('/'));
        path.remove_prefix(name.size());
        endsInFolder = name == "." || name == "..";
        if (name == ".." && !names.empty()) names.pop_back();
        if (!endsInFolder) names.push_back(name);
    }
    std::string result;
    for (const std::string_view name : names)
        result.append("/").append(name);
    return endsInFolder ? result + '/' : result;
}

bool IsBelow(std::string_view address, std::string_view folder) {
    return !folder.empty() && EqualIgnoringCase(address.substr(0, folder.size()), folder) &&
           address.substr(folder.size()).starts_with('/');
}

}  // namespace

bool IsAbsoluteAddress(std::string_view url) {
    const std::size_t colon = url.find(':');
    return colon != url.npos && IsLetter(url[0]) &&
           std::all_of(url.begin(), url.begin() + static_cast<std::ptrdiff_t>(colon), IsInScheme);
}

std::string CombinedAddress(std::string_view base, std::string_view url, std::string_view root) {
    if (IsAbsoluteAddress(url)) return std::string(url);
    std::string path(WithoutQuery(url));
    const std::string_view tail = url.substr(path.size());
    std::replace(path.begin(), path.end(), '\\', '/');
    if (path.empty()) {
        const std::string_view page =
            tail.starts_with('?') ? WithoutQuery(base) : base.substr(0, base.find('#'));
        return std::string(page).append(tail);
    }
    base = WithoutQuery(base);
    std::string start(base.substr(0, RootLength(base)));
    if (path.starts_with("//")) {
        path.insert(0, base.substr(0, base.find(':') + 1));
        start = path.substr(0, RootLength(path));
        path.erase(0, start.size());
    } else if (path.starts_with('/')) {
        if (IsBelow(base, root)) start = root;
    } else {
        const std::string_view page = base.substr(start.size());
        path.insert(0, page.substr(0, page.rfind('/') + 1));
    }
    if (!path.starts_with('/')) path.insert(0, 1, '/');
    return start.append(WithoutDots(path)).append(tail);
}

std::string FileAddress(std::string_view url) {
    url = WithoutQuery(url);
    std::string address;
    while (!url.empty()) {
        const std::string_view name = url.substr(0, url.find_first_of(kSeparators));
        // A separator that is escaped is part of a name.
        address += Escaped(TextOfUnknownCoding(DecodedPercents(name)), "%#?/\\");
        url.remove_prefix(name.size());
        if (url.empty()) break;
        address += '/';
        url.remove_prefix(1);
    }
    return address;
}

std::string EscapedAddress(std::string_view spelled) {
    return Escaped(spelled, "%#?");
}

}  // namespace morpho
