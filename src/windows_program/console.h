#pragma once

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
};

// Closes a console that was opened for this program alone: a double click brings one.
void CloseOwnConsole();

// Whether a person looks at standard error, which understands escape sequences.
bool IsConsoleWatched();

}  // namespace morpho
