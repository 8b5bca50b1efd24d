#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "windows_system/file_handle.h"

namespace morpho {

// Files and folders by full path (see full_path.h). Links are junctions, symbolic links and every
// other reparse point. What fails throws RunTimeError naming the file, with `failure` for its
// sentence where it is given. Calls that another program's open file makes fail are tried again
// for a moment.

struct FoundFile {
    std::string name;  // as spelled on the disk
    DWORD attributes = 0;
    std::uint64_t size = 0;

    bool IsFolder() const { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    bool IsLink() const { return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0; }
};

// Nothing when there is no such entry or it cannot be looked at.
std::optional<FoundFile> FindFile(const std::wstring& path);
// Without "." and "..", in byte order of the names.
std::vector<FoundFile> FilesOf(const std::wstring& folder);

enum class Links { kFollowed, kRefused };

// Holds a folder: as long as the handle is open, no program can rename, delete or replace the
// folder or one above it, so that its path means this folder.
FileHandle HoldFolder(const std::wstring& path, Links links);

// A file that is no folder, for reading; others may read, write, rename and delete it meanwhile.
FileHandle OpenToRead(const std::wstring& path, Links links);
std::uint64_t SizeOf(const FileHandle& file, const std::wstring& path);
// At most `count` bytes from `offset` on, fewer only where the file ends.
std::string ReadFrom(const FileHandle& file, std::uint64_t offset, std::uint64_t count,
                     const std::wstring& path);
// Everything in the open file.
std::string ReadAll(const FileHandle& file, const std::wstring& path);
void WriteTo(const FileHandle& file, std::string_view bytes, const std::wstring& path);

// A file replaces a file; a folder takes a free name only. A new spelling is a rename, too.
void MoveEntry(const std::wstring& from, const std::wstring& to);
// A file or a link. Read-only files are refused.
void RemoveEntry(const std::wstring& path, std::string_view failure = "could not be deleted");
void MakeFolder(const std::wstring& path);
// A folder with all contents, read-only files too; links in it are removed, not followed.
void RemoveTree(const std::wstring& path);
// Hands a file over to the disk; one that is missing is passed over.
void FlushFile(const std::wstring& path);

}  // namespace morpho
