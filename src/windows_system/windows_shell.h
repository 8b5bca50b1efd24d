#pragma once

#include "platform/shell.h"

namespace morpho {

class WindowsShell : public Shell {
  public:
    int WinExec(std::string_view commandLine, int showCommand) override;
    int Open(std::string_view verb, std::string_view file, std::string_view parameters,
             int showCommand) override;
    void DebugOutput(std::string_view line) override;
};

}  // namespace morpho
