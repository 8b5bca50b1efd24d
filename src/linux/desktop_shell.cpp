#include "linux/desktop_shell.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "linux/descriptor.h"
#include "linux/disk_path.h"
#include "linux/whole_file.h"
#include "shared/help_command.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

// The results of WinExec and Open, with the system's numbers.
constexpr int kStarted = 33;
constexpr int kFileNotFound = 2;
constexpr int kNoAssociation = 31;

bool IsAddress(std::string_view file) {
    for (const std::string_view scheme : {"http://", "https://", "ftp://", "mailto:", "file:///"}) {
        if (StartsWithIgnoringAsciiCase(file, scheme)) return true;
    }
    return false;
}

// In the forked child: runs the command, or reports through the pipe why it cannot.
[[noreturn]] void BecomeCommand(char* const* arguments, int report) {
    ::setsid();
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(nothing, standard);
    ::execvp(arguments[0], arguments);
    const char failed = 1;
    [[maybe_unused]] const ssize_t count = ::write(report, &failed, 1);
    ::_exit(127);
}

}  // namespace

DesktopShell::DesktopShell(std::vector<std::string> helpPages, Starter start)
    : helpPages_(std::move(helpPages)), start_(std::move(start)) {}

int DesktopShell::WinExec(std::string_view commandLine, int) {
    if (!OpensHelp(commandLine)) return kFileNotFound;
    for (const std::string& page : helpPages_) {
        std::error_code ignored;
        if (std::filesystem::is_regular_file(page, ignored)) return OpenTarget(page);
    }
    return kFileNotFound;
}

int DesktopShell::Open(std::string_view verb, std::string_view file, std::string_view, int) {
    if (!verb.empty() && !EqualIgnoringAsciiCase(verb, "open")) return kNoAssociation;
    if (IsAddress(file)) return OpenTarget(std::string(file));
    const auto diskPath = FindOnDisk(file);
    std::error_code ignored;
    if (!diskPath || !std::filesystem::exists(*diskPath, ignored)) return kFileNotFound;
    return OpenTarget(*diskPath);
}

void DesktopShell::DebugOutput(std::string_view line) {
    WriteAll(STDERR_FILENO, std::string(line) + '\n');
}

int DesktopShell::OpenTarget(const std::string& target) const {
    return start_({"xdg-open", target}) ? kStarted : kNoAssociation;
}

bool StartDetached(const std::vector<std::string>& command) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) return false;
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    // The grandchild has no parent now, so the system reaps it when it ends.
    const pid_t child = ::fork();
    if (child == 0) {
        const pid_t grandchild = ::fork();
        if (grandchild == 0) BecomeCommand(arguments.data(), ends[1]);
        ::_exit(grandchild < 0 ? 1 : 0);
    }
    writing.Close();
    if (child < 0) return false;
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    // The pipe closes without a byte when the command has begun.
    char failed = 0;
    ssize_t count = 0;
    while ((count = ::read(reading.Number(), &failed, 1)) < 0 && errno == EINTR) {
    }
    return status == 0 && count == 0;
}

}  // namespace morpho
