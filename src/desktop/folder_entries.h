#pragma once

#include <filesystem>
#include <vector>

namespace morpho {

// Folders, each before its contents, and regular files: all below `folder` that may be read. They
// are listed before anything is copied, for the copy may lie below the same folder. Throws
// std::filesystem::filesystem_error.
std::vector<std::filesystem::directory_entry> EntriesBelow(const std::filesystem::path& folder);

}  // namespace morpho
