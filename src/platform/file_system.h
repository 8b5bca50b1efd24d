#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// Attribute bits of a file or folder, numbered as the system does. A normal file may have none.
using FileAttributes = std::uint32_t;
inline constexpr FileAttributes kReadOnlyAttribute = 1;
inline constexpr FileAttributes kHiddenAttribute = 2;
inline constexpr FileAttributes kSystemAttribute = 4;
inline constexpr FileAttributes kFolderAttribute = 16;
inline constexpr FileAttributes kArchiveAttribute = 32;

struct FileEntry {
    std::string name;  // as spelled on disk, UTF-8
    FileAttributes attributes = 0;
    std::uint64_t size = 0;  // bytes; 0 for a folder

    bool IsFolder() const { return (attributes & kFolderAttribute) != 0; }
};

// Takes the next bytes of a file that is being written.
using ByteSink = std::function<void(std::string_view)>;

// Files and folders by Windows path ("C:\a\b", UTF-8, a doubled or trailing "\" is accepted).
// Existing entries are found without regard to letter case; new ones get the spelling given. A call
// that fails throws RunTimeError with the number of a file error and leaves no file half written.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // Nothing when there is no such entry or it cannot be read.
    virtual std::optional<FileEntry> Find(std::string_view path) const = 0;
    // The folder's entries without "." and "..", sorted by name; kPathNotFound when there is no
    // such folder.
    virtual std::vector<FileEntry> List(std::string_view folder) const = 0;

    virtual std::string ReadFile(std::string_view path) const = 0;
    // At most `count` bytes from `offset` on; fewer only where the file ends.
    virtual std::string ReadPart(std::string_view path, std::uint64_t offset,
                                 std::size_t count) const = 0;
    // Replaces the file as a whole, or creates it; its folder must exist.
    virtual void WriteFile(std::string_view path, std::string_view bytes) = 0;
    // The same for a file that need not fit into memory: `write` hands the bytes to its argument,
    // piece by piece. When it throws, the file stays as it was.
    virtual void WriteFile(std::string_view path,
                           const std::function<void(const ByteSink&)>& write) = 0;
    // Adds to the file's end, creating it when it is missing.
    virtual void AppendFile(std::string_view path, std::string_view bytes) = 0;
    // Replaces the destination as a whole.
    virtual void Copy(std::string_view source, std::string_view destination) = 0;
    // Renames within one folder or moves a file; an existing destination file is replaced.
    virtual void Move(std::string_view source, std::string_view destination) = 0;
    virtual void Delete(std::string_view path) = 0;

    // The parent must exist. Throws kFileExists when the path exists.
    virtual void CreateFolder(std::string_view path) = 0;
    // Copies the folder's regular files and subfolders into `destination`, which is created when
    // missing; files there of the same name are overwritten. Links are not followed and not copied.
    virtual void CopyFolder(std::string_view source, std::string_view destination) = 0;
    // Deletes the folder with all contents; links in it are removed, never followed.
    virtual void DeleteFolder(std::string_view path) = 0;
};

}  // namespace morpho
