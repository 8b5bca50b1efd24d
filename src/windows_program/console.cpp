#include "windows_program/console.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <initializer_list>

#include "windows_system/win32.h"

namespace morpho {

Console::Console() : codePage_(::GetConsoleOutputCP()) {
    for (FILE* stream : {stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);
}

Console::~Console() {
    std::fflush(stdout);
    std::fflush(stderr);
    // The console may outlive the program, and others use it.
    if (codePage_ != 0) ::SetConsoleOutputCP(codePage_);
}

void CloseOwnConsole() {
    DWORD programs[2] = {};
    if (::GetConsoleProcessList(programs, 2) == 1) ::FreeConsole();
}

bool IsConsoleWatched() {
    const HANDLE output = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    return ::GetConsoleMode(output, &mode) &&
           ::SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace morpho
