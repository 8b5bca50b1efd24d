#pragma once

#include <cstdint>
#include <filesystem>

namespace morpho {

// What the recolouring component needs of Windows.

// Renames a file, replacing the one of that name; waits for a moment while another program has it
// open. False when that fails.
bool ReplacePicture(const std::filesystem::path& from, const std::filesystem::path& to);

// A number that becomes another one whenever the file is written or replaced.
std::uint64_t VersionOfFile(const std::filesystem::path& file);

}  // namespace morpho
