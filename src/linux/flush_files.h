#pragma once

#include <string>
#include <vector>

namespace morpho {

// Flushes files that were written without, and the folders they stand in; paths of the disk. One
// that is gone meanwhile is passed over. Throws RunTimeError naming a file that cannot be flushed.
void FlushFiles(const std::vector<std::string>& diskPaths);

}  // namespace morpho
