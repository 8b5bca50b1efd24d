#pragma once

#include "desktop/request.h"

namespace morpho {

// Reads the program's arguments. Throws CommandError (kWrongUsage) where they make no sense.
Request ParseCommandLine(int argc, const char* const* argv, const std::string& version);

}  // namespace morpho
