#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/theme_addresses.h"

namespace morpho {

// A theme for a single page.
struct OwnTheme {
    std::string name;   // folder name, UTF-8
    std::string toWeb;  // from the page's folder to the web's: "", "../", ...
    // The sheets that pages with all of the theme's effects link, in their order.
    std::vector<std::string> styleSheets;
};

// The page with this theme as its own, independent of the web's. A page that had a theme gets the
// name in its theme tag, and theme and file in the addresses of the old theme for which `newFile`
// has a file; a page without one gets the tag and links to the style sheets at its head's end. All
// other bytes stay. Nothing when it has the theme as its own already. Throws RunTimeError for a
// page in broken UTF-16, and for one without a place for the tag.
std::optional<std::string> PageWithOwnTheme(std::string_view page, const OwnTheme& theme,
                                            const FileInNewTheme& newFile);

}  // namespace morpho
