#include "web_host/web_settings.h"

#include <algorithm>

#include "text/ignoring_case.h"
#include "text/windows_1252.h"
#include "web_host/limits.h"

namespace morpho {

namespace {

// A property in the host's settings, lines "key:TYPE|value" where TYPE is two letters.
std::optional<std::string> PropertyIn(std::string_view settings, std::string_view key) {
    while (!settings.empty()) {
        const std::string_view line = settings.substr(0, settings.find('\n'));
        settings.remove_prefix(std::min(line.size() + 1, settings.size()));
        const std::size_t colon = line.find(':');
        const std::size_t bar = line.find('|', colon == line.npos ? line.size() : colon);
        if (bar == line.npos || !EqualIgnoringAsciiCase(line.substr(0, colon), key)) continue;
        std::string_view value = line.substr(bar + 1);
        if (value.ends_with('\r')) value.remove_suffix(1);
        return TextOfUnknownCoding(value);
    }
    return {};
}

}  // namespace

std::optional<std::string> WebSetting(const WebFiles& web, std::string_view key) {
    const auto folder = web.FindFolder({"_vti_pvt"});
    const auto settings = folder ? folder->Find("service.cnf") : std::nullopt;
    if (!settings) return {};
    return PropertyIn(ReadWholeFile(*folder, settings->name, kMaxFileBytes), key);
}

}  // namespace morpho
