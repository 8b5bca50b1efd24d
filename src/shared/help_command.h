#pragma once

#include <string_view>

#include "text/ascii.h"
#include "text/ignoring_case.h"

namespace morpho {

// Whether a command line opens the program's help in the old help viewer of Windows, which no
// system has any more.
inline bool OpensHelp(std::string_view commandLine) {
    const std::string command = AsciiLowered(commandLine);
    return command.starts_with("winhlp32.exe ") && command.ends_with("morpho.hlp");
}

}  // namespace morpho
