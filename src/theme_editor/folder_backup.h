#pragma once

#include <string>
#include <vector>

namespace morpho {

class FileSystem;

// Copies the files of a folder to another one and, unless KeepChanges was called, restores them
// from there at its end. A folder that did not exist is deleted again. Subfolders are left alone.
class FolderBackup {
  public:
    // Throws RunTimeError when a file cannot be copied. Both folders without a trailing "\"; that
    // for the copies is replaced, and deleted at the end.
    FolderBackup(FileSystem& files, const std::string& folder, const std::string& copies);
    ~FolderBackup();
    FolderBackup(const FolderBackup&) = delete;
    FolderBackup& operator=(const FolderBackup&) = delete;

    void KeepChanges() { keepsChanges_ = true; }

  private:
    void CopyFiles();
    void DeleteCopies();
    bool IsUnchanged(const std::string& name) const;
    void RestoreFile(const std::string& name);
    void Restore();

    FileSystem& files_;
    std::string folder_;
    std::string copies_;
    bool existed_;
    std::vector<std::string> names_;  // of the files
    bool keepsChanges_ = false;
};

}  // namespace morpho
