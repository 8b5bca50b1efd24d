#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// Flags of the common file dialog, added.
inline constexpr int kOverwritePrompt = 2;
// Hides a box for opening read-only. No toolkit shows one.
inline constexpr int kHideReadOnly = 4;
inline constexpr int kFileMustExist = 4096;

// What the common file dialog is asked for. Texts are UTF-8, paths are Windows paths.
struct FileDialog {
    enum class Mode { kOpen, kSave };

    Mode mode = Mode::kOpen;
    std::string title = {};   // empty: the toolkit's own
    std::string filter = {};  // "Image files|*.gif;*.jpg|All Files|*.*||" (see ReadFilter)
    std::string folder = {};  // shown first; empty: the toolkit's choice
    std::string name = {};    // proposed
    int flags = 0;
};

// A kind of file that the person may choose.
struct FileType {
    std::string description;
    std::vector<std::string> patterns;  // "*.gif"; case does not matter; "*.*" means every file
};

// Reads a filter: descriptions and patterns alternate, separated by "|"; patterns are separated by
// ";". A pair without a description or a pattern is left out.
std::vector<FileType> ReadFilter(std::string_view filter);

}  // namespace morpho
