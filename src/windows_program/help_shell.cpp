#include "windows_program/help_shell.h"

#include "shared/help_command.h"
#include "windows_system/disk_calls.h"
#include "windows_system/full_path.h"
#include "windows_system/windows_environment.h"

namespace morpho {

int HelpShell::WinExec(std::string_view commandLine, int showCommand) {
    if (!OpensHelp(commandLine)) return WindowsShell::WinExec(commandLine, showCommand);
    const std::string program = FolderOfModule();
    // Beside an installed program, and in the sources of one that was only built.
    for (const char* const page :
         {"\\..\\help\\index.html", "\\..\\..\\..\\docs\\help\\index.html"}) {
        const std::wstring path = FullPath(program + page);
        if (FindFile(path)) return Open("open", ShownPath(path), "", showCommand);
    }
    return ERROR_FILE_NOT_FOUND;
}

}  // namespace morpho
