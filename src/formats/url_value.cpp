#include "formats/url_value.h"

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "text/trim.h"

namespace morpho {

namespace {

constexpr std::string_view kWhiteSpaces = " \r\n\t\v";
constexpr std::string_view kQuotes = "\"'";
constexpr std::string_view kUrl = "url";

}  // namespace

std::size_t IgnoreWhiteSpaces(std::string_view text, std::size_t start) {
    const auto found = text.find_first_not_of(kWhiteSpaces, start - 1);
    return found == std::string_view::npos ? 0 : found + 1;
}

bool IsUrlValue(std::string_view value) {
    return StartsWithIgnoringAsciiCase(value, kUrl);
}

bool FileNameOfUrl(std::string_view value, std::string& name) {
    std::size_t first = IgnoreWhiteSpaces(value, 1 + kUrl.size());
    if (first != 0) first = IgnoreWhiteSpaces(value, first + 1);
    if (first == 0)
        throw RunTimeError(ErrorNumber::kInvalidCall, "Nothing follows url in a style sheet");
    const std::size_t close = value.find(')', first - 1);
    if (close == std::string_view::npos) return false;
    const auto inside = Trim(value.substr(first - 1, close - (first - 1)), kWhiteSpaces);
    name = Trim(Trim(inside, kQuotes), kWhiteSpaces);
    return true;
}

bool StaysInsideFolder(std::string_view name) {
    if (name.find(':') != std::string_view::npos || name.starts_with('\\') || name.starts_with('/'))
        return false;
    for (std::size_t start = 0; start <= name.size();) {
        const auto end = std::min(name.find_first_of("\\/", start), name.size());
        if (name.substr(start, end - start) == "..") return false;
        start = end + 1;
    }
    return true;
}

}  // namespace morpho
