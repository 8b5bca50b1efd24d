#pragma once

namespace morpho {

// What one pass of the colorizer does to a picture. Saturation and Brightness are factors (0 to 4),
// Hue is in degrees (-180 to 180).
struct ElementAdjustment {
    double Saturation = 1.0;
    double Hue = 0.0;
    double Brightness = 1.0;

    bool operator==(const ElementAdjustment&) const = default;
    bool IsNeutral() const { return Brightness == 1.0 && Saturation == 1.0 && Hue == 0.0; }
};

}  // namespace morpho
