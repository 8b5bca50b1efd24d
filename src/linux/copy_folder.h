#pragma once

#include <string>

#include "linux/whole_file.h"

namespace morpho {

// Copies the regular files and subfolders of one folder of the disk into another, which exists.
// Links and special files are left out. A file that is there already, under whatever letter case,
// is replaced, unless it holds the same bytes. A destination inside the source is refused.
void CopyFolderContents(const std::string& source, const std::string& destination,
                        Durability durability);

}  // namespace morpho
