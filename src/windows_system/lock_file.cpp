#include "windows_system/lock_file.h"

#include "web_host/limits.h"
#include "windows_system/disk_calls.h"
#include "windows_system/full_path.h"
#include "windows_system/windows_disk.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

constexpr std::string_view kFailure = "could not be locked";

// The file is open, with nobody else allowed to write: that is the lock. The system deletes it when
// it is closed, also when the program is killed.
class LockFile : public FolderLock {
  public:
    LockFile(std::shared_ptr<HeldFolder> folder, FileHandle file)
        : folder_(std::move(folder)), file_(std::move(file)) {}

  private:
    std::shared_ptr<HeldFolder> folder_;
    FileHandle file_;
};

std::string FirstLine(const std::wstring& path) {
    std::string line;
    try {
        line = ReadFrom(OpenToRead(path, Links::kRefused), 0, kMaxHolderBytes, path);
    } catch (const RunTimeError&) {
        // The lock has gone meanwhile; it was held all the same.
        line.clear();
    }
    line.resize(std::min(line.find('\n'), line.size()));
    std::erase_if(line, [](unsigned char c) { return c < ' ' || c > '~'; });
    return line.empty() ? "another program" : line;
}

// The lock's own line must not be written into a file that is elsewhere. What stands in its place
// is removed with the handle; a file keeps its other name.
void RequireOwnFile(const FileHandle& file, const std::wstring& path) {
    BY_HANDLE_FILE_INFORMATION about = {};
    if (!::GetFileInformationByHandle(file.Get(), &about))
        throw SystemError(::GetLastError(), ShownPath(path), kFailure);
    if ((about.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), kFailure,
                          "it is a link that must not be followed");
    if (about.nNumberOfLinks > 1)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), kFailure,
                          "the file has another name besides");
}

}  // namespace

std::unique_ptr<FolderLock> TryLockFile(std::shared_ptr<HeldFolder> folder,
                                        const std::wstring& path, std::string& holder) {
    FileHandle file(
        ::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                      FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!file.IsOpen() && ::GetLastError() == ERROR_SHARING_VIOLATION) {
        holder = FirstLine(path);
        return nullptr;
    }
    if (!file.IsOpen()) throw SystemError(::GetLastError(), ShownPath(path), kFailure);
    RequireOwnFile(file, path);
    const WindowsDisk disk;
    WriteTo(file, "program " + std::to_string(disk.Program()) + " on " + disk.Machine() + "\n",
            path);
    ::SetEndOfFile(file.Get());
    return std::make_unique<LockFile>(std::move(folder), std::move(file));
}

}  // namespace morpho
