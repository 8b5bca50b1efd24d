#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace morpho {

// A file that is compiled into the program.
struct EmbeddedFile {
    std::string_view type;
    int id;
    std::span<const std::byte> bytes;
};

// All embedded files; each pair of type and id occurs once. embed.cmake generates the definition
// from the list in CMakeLists.txt.
std::span<const EmbeddedFile> EmbeddedFiles();

}  // namespace morpho
