#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace morpho {

/// A file that was compiled in.
struct EmbeddedFile {
    std::string_view type;
    int id;
    std::span<const std::byte> bytes;
};

/// All of them, each type and id once. Written by embed.cmake from the list in CMakeLists.txt.
std::span<const EmbeddedFile> EmbeddedFiles();

}  // namespace morpho
