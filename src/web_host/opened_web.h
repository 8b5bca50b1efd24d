#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/front_page.h"

namespace morpho {

// An open web folder.
struct OpenedWeb {
    std::string folder;                 // a path of the disk
    std::vector<Theme> themes;          // by name, without regard to case
    std::vector<std::string> skipped;   // what could not be taken from its themes, a sentence each;
                                        // of those that were not to be unpacked nothing is told
    std::vector<std::string> putRight;  // what a program that died while it changed the themes had
                                        // left, and what was done about it, a sentence each
};

// Where and how a web's themes are made ready.
struct UnpackOptions {
    std::string unpackFolder = {};              // the host's copies; a path of the disk
    std::optional<std::string> onlyTheme = {};  // the only one to be unpacked
    std::string installFolder = {};  // every theme is installed there for all users; or empty
    bool keepUnpacked = false;       // what is unpacked already stays as it is
};

// Opens a web folder: lists its themes, the folders in "_themes" that hold "<name>.inf", and
// unpacks each as the host would, into a folder of its name in the unpack folder, which is emptied
// first unless what is there is kept. Only regular files in the theme's folder itself are taken,
// links never. What is installed of themes that the web no longer has is removed. The web is not
// changed.
//
// Throws RunTimeError when the web cannot be read, or what is unpacked cannot be written. A theme
// that cannot be installed is among the skipped.
OpenedWeb OpenWebFolder(const std::string& folder, const UnpackOptions& options);

}  // namespace morpho
