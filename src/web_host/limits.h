#pragma once

#include <cstdint>

#include "formats/theme_package.h"

namespace morpho {

// What is larger is there to fill the memory: nothing that the host itself ever made comes near.
// Themes have some 50 files of a few kilobytes, pages some ten kilobytes.

inline constexpr std::uint64_t kMegabyte = 1024 * 1024;
// One file of a theme, and the sum of its files.
inline constexpr std::uint64_t kMaxThemeFileBytes = 32 * kMegabyte;
inline constexpr std::uint64_t kMaxThemeBytes = 64 * kMegabyte;
inline constexpr std::uint64_t kMaxPackageBytes = kMaxThemeBytes + kMaxPackageIndexBytes;
// What a lock's file says of the program that holds it: one short line.
inline constexpr std::size_t kMaxHolderBytes = 100;
// Folders inside folders. FrontPage's addresses have at most 260 characters, so 130 folders; each
// is reached anew from the top.
inline constexpr std::size_t kMaxDepth = 130;
// A page that gets another theme. It is held in memory several times over.
inline constexpr std::uint64_t kMaxPageBytes = 16 * kMegabyte;
// Any other file of a web that is read whole.
inline constexpr std::uint64_t kMaxFileBytes = 64 * kMegabyte;

}  // namespace morpho
