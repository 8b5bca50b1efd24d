#include "colorizer/colour_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace colorizer {

namespace {

/// Cosine and sine that are exact at quarter turns, and rounded so that the last digits of a
/// platform's mathematics library do not show.
std::pair<double, double> CosineAndSine(double degrees) {
    const double turn = std::remainder(degrees, 360.0);
    const double quarters = std::round(turn / 90);
    const double rest = (turn - 90 * quarters) * (std::numbers::pi / 180);
    const double digits = 1 << 30;
    const double cosine = std::round(std::cos(rest) * digits) / digits;
    const double sine = std::round(std::sin(rest) * digits) / digits;
    switch ((static_cast<int>(quarters) + 4) % 4) {
        case 0:
            return {cosine, sine};
        case 1:
            return {-sine, cosine};
        case 2:
            return {-cosine, -sine};
        default:
            return {sine, -cosine};
    }
}

bool IsFactor(double value) {
    return value >= 0 && value <= kMaxFactor;  // false for NaN
}

}  // namespace

bool Adjustment::IsNeutral() const {
    return brightness == 1 && saturation == 1 && std::remainder(hueDegrees, 360.0) == 0;
}

ColourMap::ColourMap(const Adjustment& adjustment) {
    if (!IsFactor(adjustment.brightness))
        throw Error("The brightness factor must lie between 0 and 4.");
    if (!IsFactor(adjustment.saturation))
        throw Error("The saturation factor must lie between 0 and 4.");
    if (!std::isfinite(adjustment.hueDegrees))
        throw Error("The hue shift must be a number of degrees.");
    const auto [cosine, sine] = CosineAndSine(adjustment.hueDegrees);
    const double strength = adjustment.brightness * adjustment.saturation;
    luma = adjustment.brightness;
    chroma[0][0] = strength * cosine;
    chroma[0][1] = -strength * sine;
    chroma[1][0] = strength * sine;
    chroma[1][1] = strength * cosine;
}

bool ColourMap::ChromaIsQuarterTurn() const {
    const auto isUnit = [](double value) { return value == 1 || value == -1; };
    return (isUnit(chroma[0][0]) && chroma[0][1] == 0) ||
           (isUnit(chroma[0][1]) && chroma[0][0] == 0);
}

Rgb Recolored(const ColourMap& map, const Rgb& colour) {
    // The sum of whole numbers first: a grey then has its own value as Y and exactly no chroma.
    const double y = (299 * colour.red + 587 * colour.green + 114 * colour.blue) / 1000;
    const double cb = (colour.blue - y) / 1.772;
    const double cr = (colour.red - y) / 1.402;
    const double newY = std::clamp(map.luma * y, 0.0, 255.0);
    const double newCb = std::clamp(map.chroma[0][0] * cb + map.chroma[0][1] * cr, -128.0, 127.0);
    const double newCr = std::clamp(map.chroma[1][0] * cb + map.chroma[1][1] * cr, -128.0, 127.0);
    const double green = newY - (0.114 * 1.772 * newCb + 0.299 * 1.402 * newCr) / 0.587;
    return {std::clamp(newY + 1.402 * newCr, 0.0, 255.0), std::clamp(green, 0.0, 255.0),
            std::clamp(newY + 1.772 * newCb, 0.0, 255.0)};
}

}  // namespace colorizer
