#pragma once

#include <streambuf>

namespace morpho {

// The console of this program, if it has one. While the object lives, output is written as it is,
// UTF-8 and with plain line ends.
class Console {
  public:
    Console();
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

  private:
    unsigned codePage_;
    std::streambuf* errors_;
};

// Closes a console that was opened for this program alone: a double click brings one. What is
// written to standard error afterwards is shown in a box when the Console object goes.
void CloseOwnConsole();

// Whether a person looks at standard error, which understands escape sequences.
bool IsConsoleWatched();

}  // namespace morpho
