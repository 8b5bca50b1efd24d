#include "windows_system/windows_shell.h"

#include <algorithm>

#include "windows_system/wide.h"
#include "windows_system/win32.h"
// Needs the other one before it.
#include <shellapi.h>

namespace morpho {

namespace {

// The least result that means success.
constexpr int kStarted = 33;

}  // namespace

int WindowsShell::WinExec(std::string_view commandLine, int showCommand) {
    // The call writes into its argument.
    std::wstring command = Wide(commandLine);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = static_cast<WORD>(showCommand);
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &start, &process))
        return static_cast<int>(std::min<DWORD>(::GetLastError(), kStarted - 2));
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return kStarted;
}

int WindowsShell::Open(std::string_view verb, std::string_view file, std::string_view parameters,
                       int showCommand) {
    const HINSTANCE result =
        ::ShellExecuteW(nullptr, verb.empty() ? nullptr : Wide(verb).c_str(), Wide(file).c_str(),
                        Wide(parameters).c_str(), nullptr, showCommand);
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

void WindowsShell::DebugOutput(std::string_view line) {
    ::OutputDebugStringW((Wide(line) + L'\n').c_str());
}

}  // namespace morpho
