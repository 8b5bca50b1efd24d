#include "linux/abandoned_files.h"

#include <unistd.h>

#include "linux/disk_folder.h"
#include "linux/whole_file.h"
#include "platform/run_time_error.h"

namespace morpho {

namespace {

void RemoveIn(const DiskFolder& folder) {
    for (const DiskEntry& entry : folder.Entries()) {
        if (entry.kind == DiskKind::kFile && IsAbandonedTemporaryName(entry.name)) {
            ::unlinkat(folder.Number(), entry.name.c_str(), 0);
        } else if (entry.kind == DiskKind::kFolder) {
            RemoveIn(folder.Subfolder(entry.name));
        }
    }
}

}  // namespace

void RemoveAbandonedFiles(const std::string& diskPath) {
    try {
        RemoveIn(DiskFolder::Open(diskPath, true));
    } catch (const RunTimeError&) {
        // They do no harm, and the folder may not exist yet.
        return;
    }
}

}  // namespace morpho
