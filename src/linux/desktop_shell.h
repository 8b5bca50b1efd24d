#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/shell.h"

namespace morpho {

// Opens documents with the desktop's own opener. A command line for the Windows help viewer opens
// the program's help page; every other command line is refused.
class DesktopShell : public Shell {
  public:
    // Starts a program with its arguments and does not wait; false when it cannot be started.
    using Starter = std::function<bool(const std::vector<std::string>& command)>;

    // `helpPages` are paths of the disk where the help may stand, the best first.
    explicit DesktopShell(std::vector<std::string> helpPages, Starter start);

    int WinExec(std::string_view commandLine, int showCommand) override;
    // Opens addresses (http, https, ftp, mailto, file) and Windows paths; the rest is refused.
    int Open(std::string_view verb, std::string_view file, std::string_view parameters,
             int showCommand) override;
    void DebugOutput(std::string_view line) override;

  private:
    int OpenTarget(const std::string& target) const;

    std::vector<std::string> helpPages_;
    Starter start_;
};

// Starts it detached from this process: it goes on when this one ends, and leaves no zombie when it
// ends itself.
bool StartDetached(const std::vector<std::string>& command);

}  // namespace morpho
