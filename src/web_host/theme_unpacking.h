#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/front_page.h"
#include "web_host/web_files.h"

namespace morpho {

// The themes of a web.
struct ListedThemes {
    std::vector<Theme> themes;         // by name, without regard to case
    std::vector<std::string> skipped;  // what could not be taken from them, a sentence each; of
                                       // those that were not to be unpacked nothing is told
};

// Where and how a web's themes are made ready; Windows paths.
struct UnpackOptions {
    std::string unpackFolder = {};              // the host's copies
    std::optional<std::string> onlyTheme = {};  // the only one to be unpacked
    std::string installFolder = {};  // every theme is installed there for all users; or empty
    bool keepUnpacked = false;       // what is unpacked already stays as it is
};

// Lists the web's themes, the folders in "_themes" that hold "<name>.inf", and unpacks each as the
// host would, into a folder of its name in the unpack folder, which is emptied first unless what is
// there is kept. Only regular files in the theme's folder itself are taken, links never. A theme
// that is larger than a theme can be is left out. What is installed of themes that the web no
// longer has is removed. The web is not changed.
//
// Throws RunTimeError when the web cannot be read, or what is unpacked cannot be written. A theme
// that cannot be installed is among the skipped.
ListedThemes UnpackThemes(Disk& disk, const WebFiles& web, const UnpackOptions& options);

// Unpacks one theme from its folder; the unpack folder has none of this name. False when the folder
// is no theme, or one that is too large. Throws RunTimeError when it cannot be written.
bool UnpackTheme(Disk& disk, const Folder& theme, const std::string& name,
                 const std::string& unpackFolder);

}  // namespace morpho
