#include "colorizer/block_samples.h"

#include <cmath>
#include <cstring>

#include "colorizer/dct.h"
#include "colorizer/rounding.h"

namespace colorizer {

BlockScale::BlockScale(const QuantTable& source, const QuantTable& target) {
    for (int k = 0; k < 64; ++k) {
        from[k] = static_cast<float>(source[k]);
        to[k] = 1.0F / static_cast<float>(target[k]);
    }
}

Extent Extent::Of(const float* samples) {
    float low[8], high[8];  // side by side, for vector code
    std::copy_n(samples, 8, low);
    std::copy_n(samples, 8, high);
    for (int y = 8; y < 64; y += 8) {
        for (int x = 0; x < 8; ++x) {
            low[x] = std::min(low[x], samples[y + x]);
            high[x] = std::max(high[x], samples[y + x]);
        }
    }
    return {*std::min_element(low, low + 8), *std::max_element(high, high + 8)};
}

void ToSamples(const Block& block, const BlockScale& scale, float* samples) {
    for (int k = 0; k < 64; ++k)
        samples[k] = static_cast<float>(block[k]) * scale.from[k];
    InverseDct(samples);
}

void FromSamples(float* samples, const BlockScale& scale, Block& block) {
    const Extent extent = Extent::Of(samples);
    if (extent.lowest == extent.highest) return FromFlat(extent.lowest, scale, block);
    ForwardDct(samples);
    for (int k = 0; k < 64; ++k)
        block[k] = NearestInt16(samples[k] * scale.to[k]);
}

void FromFlat(float sample, const BlockScale& scale, Block& block) {
    const float mean = 8 * sample * scale.to[0];
    std::memset(block, 0, sizeof block);
    if (sample == kLowestSample) {
        block[0] = static_cast<std::int16_t>(std::floor(mean));
    } else if (sample == kHighestSample) {
        block[0] = static_cast<std::int16_t>(std::ceil(mean));
    } else {
        block[0] = NearestInt16(mean);
    }
}

}  // namespace colorizer
