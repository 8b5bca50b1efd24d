#pragma once

#include <string>

#include "web_host/disk.h"

namespace morpho {

// Removes the temporary files of programs that were killed while they wrote, in a folder of the
// user's own, a Windows path, and in the folders below it. What cannot be read or removed stays.
void RemoveAbandonedFiles(Disk& disk, const std::string& path);

}  // namespace morpho
