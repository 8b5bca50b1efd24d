#pragma once

#include "windows_system/windows_shell.h"

namespace morpho {

// Opens the program's help page instead of the help file of old; the rest as Windows does it.
class HelpShell : public WindowsShell {
  public:
    int WinExec(std::string_view commandLine, int showCommand) override;
};

}  // namespace morpho
