#include "theme_editor/folder_backup.h"

#include <exception>

#include "platform/file_system.h"
#include "shared/mod_shared_code.h"

namespace morpho {

FolderBackup::FolderBackup(FileSystem& files, const std::string& folder, const std::string& copies)
    : files_(files), folder_(folder), copies_(copies), existed_(FolderExists(files, folder)) {
    if (!existed_) return;
    try {
        CopyFiles();
    } catch (const std::exception&) {
        DeleteCopies();
        throw;
    }
}

FolderBackup::~FolderBackup() {
    if (!keepsChanges_) Restore();
    DeleteCopies();
}

void FolderBackup::CopyFiles() {
    if (FolderExists(files_, copies_)) files_.DeleteFolder(copies_);
    files_.CopyFolder(folder_, copies_);
    for (const FileEntry& entry : files_.List(copies_)) {
        if (!entry.IsFolder()) names_.push_back(entry.name);
    }
}

void FolderBackup::DeleteCopies() {
    try {
        if (FolderExists(files_, copies_)) files_.DeleteFolder(copies_);
    } catch (const std::exception&) {
        // They lie in the work folder, which is deleted when the editor closes.
    }
}

void FolderBackup::Restore() {
    for (const std::string& name : names_)
        RestoreFile(name);
    try {
        if (!existed_ && FolderExists(files_, folder_)) files_.DeleteFolder(folder_);
    } catch (const std::exception&) {
        // Whole files of a theme that nothing uses yet; a later copy overwrites them.
    }
}

bool FolderBackup::IsUnchanged(const std::string& name) const {
    const std::string path = folder_ + '\\' + name;
    const std::string copy = copies_ + '\\' + name;
    const auto now = files_.Find(path);
    const auto before = files_.Find(copy);
    return now && before && now->size == before->size &&
           files_.ReadFile(path) == files_.ReadFile(copy);
}

void FolderBackup::RestoreFile(const std::string& name) {
    try {
        if (!IsUnchanged(name)) files_.Copy(copies_ + '\\' + name, folder_ + '\\' + name);
    } catch (const std::exception&) {
        // The other files can still be restored.
    }
}

}  // namespace morpho
