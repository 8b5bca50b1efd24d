#pragma once

#include <map>
#include <string>

namespace morpho {

class FileSystem;

// Remembers the files of a folder, and puts them back when it ends without having been told to keep
// what was made of them. A folder that did not exist is deleted again. Subfolders are left alone.
class FolderBackup {
  public:
    // Throws RunTimeError when a file cannot be read. `folder` has no trailing "\".
    FolderBackup(FileSystem& files, const std::string& folder);
    ~FolderBackup();
    FolderBackup(const FolderBackup&) = delete;
    FolderBackup& operator=(const FolderBackup&) = delete;

    void KeepChanges() { keepsChanges_ = true; }

  private:
    void PutBack(const std::string& path, const std::string& bytes);

    FileSystem& files_;
    std::string folder_;
    bool existed_;
    std::map<std::string, std::string> bytes_;  // by path
    bool keepsChanges_ = false;
};

}  // namespace morpho
