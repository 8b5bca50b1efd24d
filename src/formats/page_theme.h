#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "formats/theme_addresses.h"
#include "formats/theme_mark.h"

namespace morpho {

// The page with this theme in place of its own: the name in its theme tag, and theme and file in
// the addresses of the old theme's folder for which `newFile` has a file. All other bytes stay.
// Nothing when there is nothing to change: the page has no theme, none that is chosen, or this one.
// `theme` is a folder name, UTF-8. Throws RunTimeError for a page in broken UTF-16.
std::optional<std::string> PageWithTheme(std::string_view page, std::string_view theme,
                                         const PageChoice& choice, const FileInNewTheme& newFile);

}  // namespace morpho
