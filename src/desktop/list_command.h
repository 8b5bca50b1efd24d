#pragma once

#include <string>

#include "desktop/desktop_system.h"
#include "desktop/request.h"

namespace morpho {

// `morpho list`: the text for standard output. `warnings` gets what could not be read, a sentence
// a line, also when it throws. Throws CommandError.
std::string List(const ListRequest& request, DesktopSystem& system, std::string& warnings);

}  // namespace morpho
