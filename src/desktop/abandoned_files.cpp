#include "desktop/abandoned_files.h"

#include "platform/run_time_error.h"

namespace morpho {

namespace {

bool IsAbandoned(const Disk& disk, const FolderEntry& entry) {
    const auto program = ProgramOfTemporaryName(entry.name);
    return entry.kind == EntryKind::kFile && program && !disk.IsRunning(*program);
}

void RemoveIn(Folder& folder, const Disk& disk) {
    for (const FolderEntry& entry : folder.Entries()) {
        try {
            if (IsAbandoned(disk, entry)) folder.Remove(entry.name);
            if (entry.kind == EntryKind::kFolder) RemoveIn(*folder.Open(entry.name), disk);
        } catch (const RunTimeError&) {
            // It does no harm.
            continue;
        }
    }
}

}  // namespace

void RemoveAbandonedFiles(Disk& disk, const std::string& path) {
    try {
        RemoveIn(*disk.Open(path), disk);
    } catch (const RunTimeError&) {
        // The folder may not exist yet.
        return;
    }
}

}  // namespace morpho
