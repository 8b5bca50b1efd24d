#pragma once

#include <string>

namespace morpho {

// Removes the temporary files of programs that were killed while they wrote, in a folder of the
// user's own and in the folders below it. What cannot be read or removed stays.
void RemoveAbandonedFiles(const std::string& diskPath);

}  // namespace morpho
