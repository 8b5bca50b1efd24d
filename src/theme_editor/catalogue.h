#pragma once

#include <array>
#include <string_view>

namespace morpho {

// A picture of a theme that Theme Morpho knows.
struct CatalogueElement {
    std::string_view key;         // "active/", "normal/" or "global/", then the attribute's name
    std::string_view styleSheet;  // where the picture is named, relative to the theme's folder
    std::string_view selector;    // the rule that names it

    // The property that names the picture.
    constexpr std::string_view Attribute() const { return key.substr(kGroupLength); }
    static constexpr std::size_t kGroupLength = 7;
};

namespace catalogue {

inline constexpr std::string_view kActiveSheet = "\\graph1.css";
inline constexpr std::string_view kNormalSheet = "\\graph0.css";
inline constexpr std::string_view kGlobalSheet = "\\theme.css";
inline constexpr std::string_view kThemeRule = ".mstheme";
inline constexpr std::string_view kBodyRule = "body";

}  // namespace catalogue

// The catalogue, in the order in which a theme is read. Only active buttons have a hovered state.
inline constexpr std::array<CatalogueElement, 38> kCatalogue = {{
    {"active/nav-banner-image", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-vert-normal", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-vert-hovered", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-vert-pushed", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-horiz-normal", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-horiz-hovered", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-horiz-pushed", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/list-image-1", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/list-image-2", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/list-image-3", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/separator-image", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-prev-normal", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-prev-hovered", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-prev-pushed", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-home-normal", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-home-hovered", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-home-pushed", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-next-normal", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-next-hovered", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-next-pushed", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-up-normal", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-up-hovered", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"active/navbutton-up-pushed", catalogue::kActiveSheet, catalogue::kThemeRule},
    {"normal/nav-banner-image", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-vert-normal", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-vert-pushed", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-horiz-normal", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-horiz-pushed", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/list-image-1", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/list-image-2", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/list-image-3", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/separator-image", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-prev-normal", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-home-normal", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-next-normal", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"normal/navbutton-up-normal", catalogue::kNormalSheet, catalogue::kThemeRule},
    {"global/top-bar-button", catalogue::kGlobalSheet, catalogue::kThemeRule},
    {"global/background-image", catalogue::kGlobalSheet, catalogue::kBodyRule},
}};

// The most elements a theme can list; the history keeps this many rows a step.
inline constexpr int kMaxElements = 41;

}  // namespace morpho
