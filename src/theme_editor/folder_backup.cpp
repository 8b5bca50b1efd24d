#include "theme_editor/folder_backup.h"

#include <exception>

#include "platform/file_system.h"
#include "shared/mod_shared_code.h"

namespace morpho {

FolderBackup::FolderBackup(FileSystem& files, const std::string& folder)
    : files_(files), folder_(folder), existed_(FolderExists(files, folder)) {
    if (!existed_) return;
    for (const FileEntry& entry : files_.List(folder_)) {
        const std::string path = folder_ + '\\' + entry.name;
        if (!entry.IsFolder()) bytes_[path] = files_.ReadFile(path);
    }
}

FolderBackup::~FolderBackup() {
    if (keepsChanges_) return;
    for (const auto& [path, bytes] : bytes_)
        PutBack(path, bytes);
    try {
        if (!existed_ && FolderExists(files_, folder_)) files_.DeleteFolder(folder_);
    } catch (const std::exception&) {
        // Whole files of a theme that nothing uses yet; whoever copies there next overwrites them.
    }
}

void FolderBackup::PutBack(const std::string& path, const std::string& bytes) {
    try {
        if (!files_.Find(path) || files_.ReadFile(path) != bytes) files_.WriteFile(path, bytes);
    } catch (const std::exception&) {
        // The others may still go back.
    }
}

}  // namespace morpho
