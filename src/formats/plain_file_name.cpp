#include "formats/plain_file_name.h"

#include <algorithm>
#include <array>
#include <string>

#include "text/ascii.h"
#include "text/ignoring_case.h"
#include "text/trim.h"

namespace morpho {

namespace {

// Names that mean a device of the system in every folder, with any extension.
bool IsDeviceName(std::string_view name) {
    const std::string stem = AsciiLowered(Trim(name.substr(0, name.find('.'))));
    constexpr std::array<std::string_view, 4> kDevices = {"con", "prn", "aux", "nul"};
    if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
    return stem.size() == 4 && (stem.starts_with("com") || stem.starts_with("lpt")) &&
           stem.back() >= '0' && stem.back() <= '9';
}

}  // namespace

bool IsPlainFileName(std::string_view name) {
    return !name.empty() && std::none_of(name.begin(), name.end(), IsControl) &&
           name.find_first_of("\\/:*?<>|\"") == std::string_view::npos && name.back() != '.' &&
           name.back() != ' ' && name.front() != ' ' && !IsDeviceName(name);
}

}  // namespace morpho
