#pragma once

#include <algorithm>

#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// The range of a sample, counted from the middle grey.
inline constexpr float kLowestSample = -128;
inline constexpr float kHighestSample = 127;

inline float Clamped(float sample) {
    return std::min(std::max(sample, kLowestSample), kHighestSample);
}

/// What one component's blocks are multiplied with on the way to samples and back. They come from
/// one table and go to another when a new quality is asked for.
struct BlockScale {
    float from[64];
    float to[64];

    BlockScale(const QuantTable& source, const QuantTable& target);
};

/// The least and the greatest of a block's 64 samples.
struct Extent {
    float lowest, highest;

    static Extent Of(const float* samples);
    bool IsInside(float low, float high) const { return lowest >= low && highest <= high; }
};

/// The block's 64 samples, neither rounded nor clamped.
void ToSamples(const Block& block, const BlockScale& scale, float* samples);

/// The coefficients of 64 samples that lie in the range. The samples are used up. A block that is
/// wholly at an end of the range gets a mean at or beyond that end, never short of it: black stays
/// black with coarse tables.
void FromSamples(float* samples, const BlockScale& scale, Block& block);

/// The same for a block whose samples are all `sample`.
void FromFlat(float sample, const BlockScale& scale, Block& block);

}  // namespace colorizer
