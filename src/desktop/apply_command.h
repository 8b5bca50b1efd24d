#pragma once

#include <string>

#include "desktop/desktop_system.h"
#include "desktop/request.h"

namespace morpho {

// `morpho apply`. `warnings` gets what the user should know, a sentence a line. Throws
// RunTimeError; throws CommandError when the web's different theme of this name would be
// overwritten, or when no page uses the theme afterwards.
void Apply(const ApplyRequest& request, DesktopSystem& system, std::string& warnings);

}  // namespace morpho
