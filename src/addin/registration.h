#pragma once

#include <string_view>

namespace morpho {

// What the host reads about an add-in, for the current user.
struct AddInRegistration {
    std::string_view location;  // the host's key in the registry
    std::string_view friendlyName;
    std::string_view description;
    int loadBehavior;
};

inline constexpr std::string_view kAddInLocation =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\FrontPage";
// A load behaviour: the host loads the add-in at its start and connects it.
inline constexpr int kLoadAtStart = 3;

inline constexpr AddInRegistration kThemeAddIn{kAddInLocation, "Theme Morpho",
                                               "Theme Morpho Add-In For FrontPage", kLoadAtStart};
inline constexpr AddInRegistration kImageAddIn{kAddInLocation, "Image Morpho",
                                               "Image Morpho Add-In For FrontPage", kLoadAtStart};

}  // namespace morpho
