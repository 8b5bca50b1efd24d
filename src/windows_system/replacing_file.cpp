#include "windows_system/replacing_file.h"

#include "windows_system/disk_calls.h"
#include "windows_system/full_path.h"
#include "windows_system/patience.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

constexpr std::string_view kFailure = "could not be written";
constexpr std::uint64_t kChunk = 256UL * 1024;

// What a new file gets of the one that it replaces.
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

bool TryMoveOver(const std::wstring& from, const std::wstring& to, DWORD flags) {
    if (::MoveFileExW(from.c_str(), to.c_str(), flags)) return true;
    if (::GetLastError() != ERROR_ACCESS_DENIED) return false;
    // A file that is open can be renamed, if whoever has it open allows that, but not replaced.
    const std::wstring old =
        JoinPath(FolderOf(to), Wide(NewTemporaryName(::GetCurrentProcessId())));
    const bool done = ::ReplaceFileW(to.c_str(), from.c_str(), old.c_str(),
                                     REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0;
    if (!done && ::GetLastError() == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2)
        ::MoveFileExW(old.c_str(), to.c_str(), 0);
    if (done) ::DeleteFileW(old.c_str());
    ::SetLastError(ERROR_ACCESS_DENIED);
    return done;
}

}  // namespace

bool MoveOver(const std::wstring& from, const std::wstring& to, Durability durability) {
    const DWORD flags = MOVEFILE_REPLACE_EXISTING |
                        (durability == Durability::kFlushed ? MOVEFILE_WRITE_THROUGH : DWORD{0});
    return TryWithPatience([&] { return TryMoveOver(from, to, flags); });
}

ReplacingFile::ReplacingFile(std::wstring path, Durability durability, const std::wstring& model)
    : path_(std::move(path)), durability_(durability) {
    const auto existing = FindFile(model);
    // A link is itself replaced; it lends nothing.
    const bool isModel = existing && !existing->IsLink();
    if (isModel && existing->IsFolder())
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path_), kFailure,
                          "it is a folder");
    if (isModel && (existing->attributes & FILE_ATTRIBUTE_READONLY) != 0)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path_), kFailure,
                          "it is read-only");
    CreateTemporary(isModel ? existing->attributes & kKeptAttributes : 0);
}

ReplacingFile::~ReplacingFile() {
    file_.Close();
    if (!temporary_.empty()) ::DeleteFileW(temporary_.c_str());
}

void ReplacingFile::CreateTemporary(DWORD attributes) {
    do {
        temporary_ = JoinPath(FolderOf(path_), Wide(NewTemporaryName(::GetCurrentProcessId())));
        file_ = FileHandle(::CreateFileW(temporary_.c_str(), GENERIC_WRITE,
                                         FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, CREATE_NEW,
                                         FILE_ATTRIBUTE_ARCHIVE | attributes, nullptr));
    } while (!file_.IsOpen() && ::GetLastError() == ERROR_FILE_EXISTS);
    if (file_.IsOpen()) return;
    temporary_.clear();
    throw SystemError(::GetLastError(), ShownPath(path_), kFailure);
}

void ReplacingFile::Write(std::string_view bytes) {
    WriteTo(file_, bytes, path_);
}

void ReplacingFile::CopyFrom(const FileHandle& file, const std::wstring& source) {
    std::uint64_t offset = 0;
    for (std::string bytes; !(bytes = ReadFrom(file, offset, kChunk, source)).empty();
         offset += bytes.size())
        Write(bytes);
}

void ReplacingFile::Commit() {
    if (durability_ == Durability::kFlushed && !::FlushFileBuffers(file_.Get()))
        throw SystemError(::GetLastError(), ShownPath(path_), kFailure);
    file_.Close();
    const auto target = FindFile(path_);
    // Replacing a folder would be refused as "access denied", like an open file.
    if (target && target->IsFolder())
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path_), kFailure,
                          "it is a folder");
    // The existing spelling stays.
    const std::wstring spelled = target ? JoinPath(FolderOf(path_), Wide(target->name)) : path_;
    if (!MoveOver(temporary_, spelled, durability_))
        throw SystemError(::GetLastError(), ShownPath(path_), kFailure);
    temporary_.clear();
}

}  // namespace morpho
