// morpho.exe.

#include <string>
#include <vector>

#include "desktop/run_command_line.h"
#include "windows_program/console.h"
#include "windows_program/windows_screen.h"
#include "windows_system/wide.h"

extern "C" {

// Command interpreters of Windows leave "*" and "?" to the program. With this number the C library
// puts the names of files in their place, except in quotes.
extern int _dowildcard;
int _dowildcard = -1;

// A program with a console, not one for windows alone: a command interpreter waits for it, takes
// its exit status and shows its output. A double click brings a console that goes when a window
// opens.
int wmain(int argc, wchar_t** argv) {
    const morpho::Console console;
    std::vector<std::string> arguments;
    for (int i = 0; i < argc; ++i)
        arguments.push_back(morpho::Narrow(argv[i]));
    std::vector<const char*> words;
    for (const std::string& argument : arguments)
        words.push_back(argument.c_str());
    morpho::WindowsDesktop desktop;
    morpho::WindowsScreen screen(desktop);
    return morpho::RunCommandLine(argc, words.data(), desktop, screen);
}

}  // extern "C"
