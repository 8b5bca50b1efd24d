#pragma once

#include <string>

#include "desktop/desktop_system.h"
#include "desktop/request.h"
#include "desktop/screen.h"

namespace morpho {

// `morpho recolor`: the text for standard output. `warnings` gets the files that were left out and
// the pictures that could not be recoloured, a sentence a line, also when it throws. Throws
// CommandError; then nothing was written.
std::string Recolor(const RecolorRequest& request, DesktopSystem& system, Screen& screen,
                    std::string& warnings);

}  // namespace morpho
