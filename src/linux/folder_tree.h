#pragma once

#include <string>

#include "linux/disk_folder.h"

namespace morpho {

// Removes a folder with all contents, from the open folder it stands in; links in it are removed,
// not followed, also when another program puts them there meanwhile. `name` is bytes, as on the
// disk. Throws RunTimeError naming what cannot be deleted.
void RemoveTree(const DiskFolder& folder, const std::string& name);

}  // namespace morpho
