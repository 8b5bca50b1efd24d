#pragma once

#include "colorizer/recolorer.h"

namespace colorizer {

/// An adjustment as numbers. Luma is scaled, the pair (Cb, Cr) goes through a matrix.
struct ColourMap {
    double luma;
    double chroma[2][2];

    /// Throws Error where a value is outside the limits of the adjustment.
    explicit ColourMap(const Adjustment& adjustment);

    /// True where the matrix only swaps Cb and Cr or turns their signs (quarter turns at full
    /// strength).
    bool ChromaIsQuarterTurn() const;
};

/// A colour in 0...255 for each channel, with fractions.
struct Rgb {
    double red, green, blue;
};

/// The exact colour after the pass, clamped to 0...255, not rounded.
Rgb Recolored(const ColourMap& map, const Rgb& colour);

}  // namespace colorizer
