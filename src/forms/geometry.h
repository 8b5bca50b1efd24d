#pragma once

#include <algorithm>

namespace morpho {

// Positions and sizes of forms and controls are in twips; 15 twips are one pixel at 96 dots per
// inch.
inline constexpr int kTwipsPerPixel = 15;

struct Size {
    int width = 0;
    int height = 0;

    bool operator==(const Size&) const = default;
};

struct Rectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rectangle&) const = default;
};

// The rectangle moved into the middle of `area`.
constexpr Rectangle Centered(const Rectangle& wanted, const Rectangle& area) {
    return {area.left + (area.width - wanted.width) / 2,
            area.top + (area.height - wanted.height) / 2, wanted.width, wanted.height};
}

// The rectangle moved, and if need be shrunk, into `area`, for instance that of a screen.
constexpr Rectangle MovedInto(const Rectangle& wanted, const Rectangle& area) {
    const int width = std::min(wanted.width, area.width);
    const int height = std::min(wanted.height, area.height);
    return {std::clamp(wanted.left, area.left, area.left + area.width - width),
            std::clamp(wanted.top, area.top, area.top + area.height - height), width, height};
}

}  // namespace morpho
