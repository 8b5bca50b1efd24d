#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/front_page.h"

namespace morpho {

// An open web folder.
struct OpenedWeb {
    std::string folder;                // a path of the disk
    std::vector<Theme> themes;         // by name, without regard to case
    std::vector<std::string> skipped;  // what could not be taken from its themes, a sentence each
};

// Opens a web folder: lists its themes, the folders in "_themes" that hold "<name>.inf", and
// unpacks each as the host would, into a folder of its name in `unpackFolder` (a path of the disk,
// emptied first). With `onlyTheme` only that theme is unpacked. Only regular files in the theme's
// folder itself are taken, links never. The web is not changed.
//
// Throws RunTimeError when the web cannot be read, or what is unpacked cannot be written.
OpenedWeb OpenWebFolder(const std::string& folder, const std::string& unpackFolder,
                        const std::optional<std::string>& onlyTheme = {});

}  // namespace morpho
