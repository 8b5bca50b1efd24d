#include "windows_system/windows_disk.h"

#include <limits>

#include "windows_system/full_path.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"
#include "windows_system/windows_folder.h"

namespace morpho {

namespace {

void CreateFolders(const std::wstring& path) {
    if (NameOf(path).empty() || FindFile(path)) return;
    CreateFolders(FolderOf(path));
    // Another program may have been faster.
    if (!::CreateDirectoryW(path.c_str(), nullptr) && ::GetLastError() != ERROR_ALREADY_EXISTS)
        throw SystemError(::GetLastError(), ShownPath(path), "could not be created");
}

}  // namespace

std::unique_ptr<Folder> WindowsDisk::Open(std::string_view path) {
    return std::make_unique<WindowsFolder>(HeldFolder::Open(FullPath(path)));
}

std::unique_ptr<Folder> WindowsDisk::OpenOrCreate(std::string_view path) {
    CreateFolders(FullPath(path));
    return Open(path);
}

std::string WindowsDisk::Machine() const {
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD length = static_cast<DWORD>(std::size(name));
    return ::GetComputerNameW(name, &length) ? Narrow({name, length}) : "this machine";
}

std::uint64_t WindowsDisk::Program() const {
    return ::GetCurrentProcessId();
}

bool WindowsDisk::IsRunning(std::uint64_t program) const {
    if (program == 0 || program > std::numeric_limits<DWORD>::max()) return false;
    const HANDLE process = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(program));
    // Another user's program.
    if (process == nullptr) return ::GetLastError() == ERROR_ACCESS_DENIED;
    const bool isRunning = ::WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    ::CloseHandle(process);
    return isRunning;
}

}  // namespace morpho
