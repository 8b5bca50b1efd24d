#include "windows_system/disk_calls.h"

#include <algorithm>

#include "windows_system/full_path.h"
#include "windows_system/patience.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::uint64_t kChunk = 1024UL * 1024;

RunTimeError LastError(const std::wstring& path, std::string_view failure) {
    return SystemError(::GetLastError(), ShownPath(path), failure);
}

RunTimeError NoEntry(const std::wstring& path, std::string_view failure) {
    const bool hasFolder = FindFile(FolderOf(path)).has_value();
    return SystemError(hasFolder ? ERROR_FILE_NOT_FOUND : ERROR_PATH_NOT_FOUND, ShownPath(path),
                       failure);
}

void RefuseTarget(const FoundFile& source, const std::wstring& to) {
    const auto target = FindFile(to);
    const auto refuse = [&](std::string_view reason) {
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(to), "could not be replaced",
                          reason);
    };
    if (!target) return;
    if (target->IsFolder()) refuse("it is a folder");
    if (source.IsFolder()) refuse("it is a file");
    if ((target->attributes & FILE_ATTRIBUTE_READONLY) != 0) refuse("it is read-only");
}

FoundFile EntryOf(const WIN32_FIND_DATAW& data) {
    const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const std::uint64_t size = std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
    return {Narrow(data.cFileName), data.dwFileAttributes, isFolder ? 0 : size};
}

// The root of a drive or a share has no entry of its own.
std::optional<FoundFile> FindRoot(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return {};
    return FoundFile{Narrow(NameOf(path)), attributes, 0};
}

// Also what is read-only; a link to a folder goes like a folder.
bool RemoveOne(const std::wstring& path, const FoundFile& entry) {
    if ((entry.attributes & FILE_ATTRIBUTE_READONLY) != 0)
        ::SetFileAttributesW(path.c_str(), entry.attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    return TryWithPatience([&] {
        return entry.IsFolder() ? ::RemoveDirectoryW(path.c_str()) : ::DeleteFileW(path.c_str());
    });
}

}  // namespace

std::optional<FoundFile> FindFile(const std::wstring& path) {
    if (NameOf(path).empty()) return FindRoot(path);
    if (NameOf(path).find_first_of(L"*?<>\"") != std::wstring_view::npos) return {};
    WIN32_FIND_DATAW data = {};
    const HANDLE search = ::FindFirstFileW(path.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return FindRoot(path);
    ::FindClose(search);
    return EntryOf(data);
}

std::vector<FoundFile> FilesOf(const std::wstring& folder) {
    WIN32_FIND_DATAW data = {};
    const HANDLE search = ::FindFirstFileW(JoinPath(folder, L"*").c_str(), &data);
    std::vector<FoundFile> entries;
    if (search == INVALID_HANDLE_VALUE) {
        // The root of an empty drive has not even ".".
        const DWORD code = ::GetLastError();
        if (code == ERROR_FILE_NOT_FOUND) return entries;
        throw SystemError(code, ShownPath(folder), "could not be listed");
    }
    do {
        const std::wstring_view name = data.cFileName;
        if (name != L"." && name != L"..") entries.push_back(EntryOf(data));
    } while (::FindNextFileW(search, &data));
    const DWORD code = ::GetLastError();
    ::FindClose(search);
    if (code != ERROR_NO_MORE_FILES)
        throw SystemError(code, ShownPath(folder), "could not be listed");
    std::sort(entries.begin(), entries.end(),
              [](const FoundFile& a, const FoundFile& b) { return a.name < b.name; });
    return entries;
}

FileHandle HoldFolder(const std::wstring& path, Links links) {
    const DWORD flags =
        FILE_FLAG_BACKUP_SEMANTICS | (links == Links::kRefused ? FILE_FLAG_OPEN_REPARSE_POINT : 0);
    FileHandle folder;
    TryWithPatience([&] {
        folder = FileHandle(::CreateFileW(path.c_str(), FILE_LIST_DIRECTORY,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, flags, nullptr));
        return folder.IsOpen();
    });
    if (!folder.IsOpen()) {
        const DWORD code = ::GetLastError();
        if (code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND)
            throw SystemError(ErrorNumber::kPathNotFound, ShownPath(path), "could not be opened",
                              "the folder does not exist");
        throw SystemError(code, ShownPath(path), "could not be opened");
    }
    BY_HANDLE_FILE_INFORMATION about = {};
    if (!::GetFileInformationByHandle(folder.Get(), &about))
        throw LastError(path, "could not be opened");
    if ((about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
        throw SystemError(ErrorNumber::kPathNotFound, ShownPath(path), "could not be opened",
                          "a folder is expected there");
    if (links == Links::kRefused && (about.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), "could not be opened",
                          "it is a link that must not be followed");
    return folder;
}

FileHandle OpenToRead(const std::wstring& path, Links links) {
    FileHandle file;
    const DWORD flags = links == Links::kRefused ? FILE_FLAG_OPEN_REPARSE_POINT : 0;
    const bool opened = TryWithPatience([&] {
        file = FileHandle(::CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr,
                                        OPEN_EXISTING, flags, nullptr));
        // A folder is refused as "access denied", too, which does not pass.
        const auto entry = file.IsOpen() ? std::nullopt : FindFile(path);
        if (entry && entry->IsFolder()) ::SetLastError(ERROR_DIRECTORY);
        return file.IsOpen();
    });
    if (!opened && ::GetLastError() == ERROR_DIRECTORY)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), "could not be read",
                          "it is a folder");
    if (!opened) throw LastError(path, "could not be read");
    BY_HANDLE_FILE_INFORMATION about = {};
    if (!::GetFileInformationByHandle(file.Get(), &about))
        throw LastError(path, "could not be read");
    if (links == Links::kRefused && (about.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), "could not be read",
                          "it is a link that must not be followed");
    return file;
}

std::uint64_t SizeOf(const FileHandle& file, const std::wstring& path) {
    LARGE_INTEGER size = {};
    if (!::GetFileSizeEx(file.Get(), &size)) throw LastError(path, "could not be read");
    return static_cast<std::uint64_t>(size.QuadPart);
}

std::string ReadFrom(const FileHandle& file, std::uint64_t offset, std::uint64_t count,
                     const std::wstring& path) {
    const std::uint64_t size = SizeOf(file, path);
    std::string bytes(static_cast<std::size_t>(std::min(count, size > offset ? size - offset : 0)),
                      '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        OVERLAPPED position = {};
        position.Offset = static_cast<DWORD>(offset + filled);
        position.OffsetHigh = static_cast<DWORD>((offset + filled) >> 32);
        const auto wanted =
            static_cast<DWORD>(std::min<std::uint64_t>(bytes.size() - filled, kChunk));
        DWORD got = 0;
        if (!::ReadFile(file.Get(), bytes.data() + filled, wanted, &got, &position) &&
            ::GetLastError() != ERROR_HANDLE_EOF)
            throw LastError(path, "could not be read");
        if (got == 0) break;
        filled += got;
    }
    bytes.resize(filled);
    return bytes;
}

std::string ReadAll(const FileHandle& file, const std::wstring& path) {
    return ReadFrom(file, 0, SizeOf(file, path), path);
}

void WriteTo(const FileHandle& file, std::string_view bytes, const std::wstring& path) {
    while (!bytes.empty()) {
        const auto wanted = static_cast<DWORD>(std::min<std::uint64_t>(bytes.size(), kChunk));
        DWORD written = 0;
        if (!::WriteFile(file.Get(), bytes.data(), wanted, &written, nullptr))
            throw LastError(path, "could not be written");
        bytes.remove_prefix(written);
    }
}

void MoveEntry(const std::wstring& from, const std::wstring& to) {
    const auto source = FindFile(from);
    if (!source) throw NoEntry(from, "could not be moved");
    const bool isSpelling =
        ::CompareStringOrdinal(from.c_str(), -1, to.c_str(), -1, TRUE) == CSTR_EQUAL;
    if (!isSpelling) RefuseTarget(*source, to);
    const DWORD flags = source->IsFolder() ? 0
                                           : MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED |
                                                 MOVEFILE_WRITE_THROUGH;
    const auto move = [flags](const std::wstring& here, const std::wstring& there) {
        if (!TryWithPatience(
                [&] { return ::MoveFileExW(here.c_str(), there.c_str(), flags) != 0; }))
            throw LastError(there, "could not be written");
    };
    move(from, to);
    const auto moved = isSpelling ? FindFile(to) : std::nullopt;
    if (!moved || moved->name == Narrow(NameOf(to))) return;
    // Wine takes the new spelling for the name that is there.
    const std::wstring between = to + L".renamed";
    move(from, between);
    move(between, to);
}

void RemoveEntry(const std::wstring& path, std::string_view failure) {
    const auto entry = FindFile(path);
    if (!entry) throw NoEntry(path, failure);
    if (entry->IsFolder() && !entry->IsLink())
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), failure, "it is a folder");
    if ((entry->attributes & FILE_ATTRIBUTE_READONLY) != 0)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(path), failure,
                          "it is read-only");
    if (!RemoveOne(path, *entry)) throw LastError(path, failure);
}

void MakeFolder(const std::wstring& path) {
    if (!::CreateDirectoryW(path.c_str(), nullptr)) throw LastError(path, "could not be created");
}

void RemoveTree(const std::wstring& path) {
    // A loop, not a recursion: folders of strangers may be of any depth. A folder is met twice: its
    // contents go the first time, itself the second. It is held in between, so that no link can
    // take its place.
    constexpr std::string_view kFailure = "could not be deleted completely";
    std::vector<std::pair<std::wstring, FileHandle>> pending;
    const auto add = [&](const std::wstring& folder) {
        pending.emplace_back(folder, HoldFolder(folder, Links::kRefused));
    };
    add(path);
    while (!pending.empty()) {
        const std::wstring folder = pending.back().first;
        const std::size_t before = pending.size();
        for (const FoundFile& entry : FilesOf(folder)) {
            const std::wstring inner = JoinPath(folder, Wide(entry.name));
            if (entry.IsFolder() && !entry.IsLink()) {
                add(inner);
            } else if (!RemoveOne(inner, entry) && ::GetLastError() != ERROR_FILE_NOT_FOUND) {
                throw LastError(inner, kFailure);
            }
        }
        if (pending.size() > before) continue;
        pending.pop_back();
        const auto entry = FindFile(folder);
        if (entry && !RemoveOne(folder, *entry)) throw LastError(folder, kFailure);
    }
}

void FlushFile(const std::wstring& path) {
    FileHandle file;
    TryWithPatience([&] {
        file = FileHandle(::CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
        return file.IsOpen();
    });
    if (!file.IsOpen() && ::GetLastError() == ERROR_FILE_NOT_FOUND) return;
    if (!file.IsOpen() || !::FlushFileBuffers(file.Get()))
        throw LastError(path, "could not be written");
}

}  // namespace morpho
