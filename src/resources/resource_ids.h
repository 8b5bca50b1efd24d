#pragma once

#include <string_view>

namespace morpho {

// Types of resources.
inline constexpr std::string_view kTemplateResource = "TEMPLATE";    // HTML, Windows-1252
inline constexpr std::string_view kColorBandResource = "COLORBAND";  // JPEG
inline constexpr std::string_view kBitmapResource = "BITMAP";        // BMP
inline constexpr std::string_view kIconResource = "ICON";            // PNG with transparency
inline constexpr std::string_view kPictureResource = "PICTURE";      // PNG with transparency

// Ids of types that have a single resource.
inline constexpr int kPreviewTemplate = 101;
inline constexpr int kColorBand = 101;     // 397 by 7 pixels
inline constexpr int kToolbarFace = 101;   // 20 by 20 pixels, background (192, 192, 192)
inline constexpr int kAboutPicture = 101;  // 192 by 256 pixels, to be shown at half that size

// Icons: the application's, by size in pixels, and those of notices, 64 by 64 pixels, to be shown
// at half that size.
inline constexpr int kApplicationIcon16 = 1;
inline constexpr int kApplicationIcon32 = 2;
inline constexpr int kApplicationIcon48 = 3;
inline constexpr int kApplicationIcon128 = 4;
inline constexpr int kStopIconId = 11;
inline constexpr int kQuestionIconId = 12;
inline constexpr int kInformationIconId = 13;

// Strings.
inline constexpr int kQuickReferenceText = 101;  // lines end with a line feed
inline constexpr int kUnsavedThemePrompt = 102;  // %1: the theme's label

}  // namespace morpho
