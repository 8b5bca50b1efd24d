#include "web_host/installed_themes.h"

#include "platform/run_time_error.h"

namespace morpho {

void InstalledThemes::Install(const std::string& name, const Folder& theme,
                              const std::string& descriptionName,
                              const std::vector<PackedFile>& files) {
    PackTheme(theme, descriptionName, files, name, *Entered(name));
}

void InstalledThemes::Reserve(const std::string& name) {
    Entered(name);
}

void InstalledThemes::RemoveOthers() {
    for (const FolderEntry& entry : folder_->Entries()) {
        if (names_.contains(entry.name)) continue;
        if (entry.kind == EntryKind::kFolder) {
            folder_->RemoveFolder(entry.name);
        } else {
            folder_->Remove(entry.name);
        }
    }
}

std::unique_ptr<Folder> InstalledThemes::Entered(const std::string& name) {
    names_.insert(name);
    try {
        return folder_->Create(name);
    } catch (const RunTimeError& error) {
        if (error.Number() != ErrorNumber::kFileExists) throw;
        return folder_->Open(name);
    }
}

}  // namespace morpho
