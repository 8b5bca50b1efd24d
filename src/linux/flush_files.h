#pragma once

#include <string>
#include <vector>

#include "linux/disk_folder.h"

namespace morpho {

// Flushes files of an open folder that were written without, and the folder's entries; names are
// bytes, as on the disk. A file that is gone meanwhile is passed over. Throws RunTimeError naming
// what cannot be flushed.
void FlushFiles(const DiskFolder& folder, const std::vector<std::string>& names);

}  // namespace morpho
