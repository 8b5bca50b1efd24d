// morpho.exe.

#include "desktop/run_command_line.h"
#include "windows_program/console.h"
#include "windows_program/windows_screen.h"

// A program with a console: a command interpreter waits for it, takes its exit status and shows its
// output, which it does for no other kind of program.
int main() {
    const morpho::Console console;
    const std::vector<std::string> arguments = morpho::Arguments();
    std::vector<const char*> words;
    for (const std::string& argument : arguments)
        words.push_back(argument.c_str());
    morpho::WindowsDesktop desktop;
    morpho::WindowsScreen screen;
    return morpho::RunCommandLine(static_cast<int>(words.size()), words.data(), desktop, screen);
}
