#pragma once

#include <string>

namespace morpho {

// Removes temporary files that programs which died while they wrote left in a folder of the user's
// own and in the folders below it. What cannot be read or removed stays.
void RemoveAbandonedFiles(const std::string& diskPath);

}  // namespace morpho
