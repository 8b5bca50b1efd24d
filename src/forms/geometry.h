#pragma once

namespace morpho {

// Positions and sizes of forms and controls are in twips; 15 twips are one pixel at 96 dots per
// inch.
inline constexpr int kTwipsPerPixel = 15;

struct Rectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rectangle&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;

    bool operator==(const Size&) const = default;
};

}  // namespace morpho
