#include "windows_program/console.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <initializer_list>
#include <iostream>
#include <sstream>

#include "windows_system/wide.h"
#include "windows_system/win32.h"

namespace morpho {

namespace {

// What is said on standard error once the console is closed.
std::stringbuf untold;

}  // namespace

Console::Console() : codePage_(::GetConsoleOutputCP()), errors_(std::cerr.rdbuf()) {
    for (FILE* stream : {stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);
}

Console::~Console() {
    std::fflush(stdout);
    std::fflush(stderr);
    // The console may outlive the program, and others use it.
    if (codePage_ != 0) ::SetConsoleOutputCP(codePage_);
    std::cerr.rdbuf(errors_);
    if (!untold.str().empty())
        ::MessageBoxW(nullptr, Wide(untold.str()).c_str(), L"Morpho", MB_OK | MB_ICONERROR);
}

void CloseOwnConsole() {
    DWORD programs[2] = {};
    if (::GetConsoleProcessList(programs, 2) != 1) return;
    ::FreeConsole();
    std::cerr.rdbuf(&untold);
}

bool IsConsoleWatched() {
    const HANDLE output = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    return ::GetConsoleMode(output, &mode) &&
           ::SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace morpho
