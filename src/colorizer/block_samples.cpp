#include "colorizer/block_samples.h"

#include <algorithm>
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

void ToSamples(const Block& block, const BlockScale& scale, float* samples) {
    for (int k = 0; k < 64; ++k)
        samples[k] = static_cast<float>(block[k]) * scale.from[k];
    InverseDct(samples);
    for (int k = 0; k < 64; ++k)
        samples[k] = std::min(std::max(samples[k], kLowestSample), kHighestSample);
}

void FromSamples(float* samples, const BlockScale& scale, Block& block) {
    const auto [lowest, highest] = std::minmax_element(samples, samples + 64);
    if (*highest == kLowestSample || *lowest == kHighestSample) {
        const float mean = 8 * samples[0] * scale.to[0];
        std::memset(block, 0, sizeof block);
        block[0] = static_cast<std::int16_t>(mean < 0 ? std::floor(mean) : std::ceil(mean));
        return;
    }
    ForwardDct(samples);
    for (int k = 0; k < 64; ++k)
        block[k] = NearestInt16(samples[k] * scale.to[k]);
}

}  // namespace colorizer
