#pragma once

#include <string>
#include <vector>

#include "platform/front_page.h"
#include "shared/component.h"

namespace morpho {

// The folder, with a trailing "\", in which a host of this release keeps the themes it has
// unpacked.
std::string FindThemeTempPath(const Program& program, const std::string& version);

// The themes of the active web that the host has unpacked into that folder; none without a web.
std::vector<Theme> ListOpenedThemes(const Program& program, const std::string& themeTempPath);

}  // namespace morpho
