#pragma once

#include "desktop/desktop_system.h"
#include "desktop/screen.h"

namespace morpho {

// The whole program: reads its arguments (UTF-8, the first is the program itself), runs the command
// and prints what it has to tell. Returns the exit status.
int RunCommandLine(int argc, const char* const* argv, DesktopSystem& system, Screen& screen);

}  // namespace morpho
