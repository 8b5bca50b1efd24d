#pragma once

#include <string>

#include "web_host/disk.h"
#include "windows_system/file_handle.h"

namespace morpho {

// Renames a file, replacing the one of that name. Waits for a moment while another program has that
// one open; false, with the reason in GetLastError, when that fails.
bool MoveOver(const std::wstring& from, const std::wstring& to, Durability durability);

// New contents of a file (see NewFile). An existing file keeps its attributes; one that is
// read-only is refused, and so is a folder. The rights are those that the folder gives.
class ReplacingFile : public NewFile {
  public:
    // Paths are full ones. The attributes are those of the file `model`, which may be missing.
    ReplacingFile(std::wstring path, Durability durability, const std::wstring& model);
    ReplacingFile(const std::wstring& path, Durability durability)
        : ReplacingFile(path, durability, path) {}
    ~ReplacingFile() override;
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    void Write(std::string_view bytes) override;
    // Writes all of the open file; `source` is its path, for the error.
    void CopyFrom(const FileHandle& file, const std::wstring& source);
    void Commit() override;

  private:
    void CreateTemporary(DWORD attributes);

    std::wstring path_;
    std::wstring temporary_;  // empty once there is no such file
    Durability durability_;
    FileHandle file_;
};

}  // namespace morpho
