#pragma once

#include <cstdint>

#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// The range of a sample, counted from the middle grey.
inline constexpr float kLowestSample = -128;
inline constexpr float kHighestSample = 127;

/// What one component's blocks are multiplied with on the way to samples and back. They come from
/// one table and go to another when a new quality is asked for.
struct BlockScale {
    float from[64];
    float to[64];

    BlockScale(const QuantTable& source, const QuantTable& target);
};

/// The block's 64 samples, clamped to the range as every decoder clamps them, but not rounded.
void ToSamples(const Block& block, const BlockScale& scale, float* samples);

/// The coefficients of 64 samples that lie in the range. The samples are used up. A block that is
/// wholly at an end of the range gets a mean at or beyond that end, never short of it: black stays
/// black with coarse tables.
void FromSamples(float* samples, const BlockScale& scale, Block& block);

}  // namespace colorizer
