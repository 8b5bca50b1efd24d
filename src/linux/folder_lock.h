#pragma once

#include <memory>
#include <string>

#include "linux/disk_folder.h"
#include "web_host/disk.h"

namespace morpho {

// See Folder::TryLock. `name` is bytes, as on the disk. The file holds one line that names the
// program, for people; nothing is ever concluded from it.
std::unique_ptr<FolderLock> TryLockFile(const DiskFolder& folder, const std::string& name,
                                        std::string& holder);

}  // namespace morpho
