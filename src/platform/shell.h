#pragma once

#include <string_view>

namespace morpho {

// Programs and documents outside this one.
class Shell {
  public:
    virtual ~Shell() = default;

    // Starts a program by command line without waiting; `showCommand` 1 is a normal window. Values
    // above 31 mean success.
    virtual int WinExec(std::string_view commandLine, int showCommand) = 0;
    // Runs `verb` ("open") on a document or an address. Values above 32 mean success.
    virtual int Open(std::string_view verb, std::string_view file, std::string_view parameters,
                     int showCommand) = 0;
    // Writes one line to the debugger output; `line` has no line end.
    virtual void DebugOutput(std::string_view line) = 0;
};

}  // namespace morpho
