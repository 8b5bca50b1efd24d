#pragma once

#include <filesystem>

namespace morpho {

// Puts the file `from` in the place of `to`, in one step; false when that fails. Where a file is
// renamed over another, ext4 first writes the new one to the disk, which takes ten times as long as
// all the rest. A picture that is worked on need not survive a power failure: here nothing waits
// for the disk.
bool ReplaceWorkFile(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace morpho
