#include "colorizer/coefficient_path.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "colorizer/dct.h"
#include "colorizer/rounding.h"

namespace colorizer {

namespace {

constexpr float kRange = kHighestSample - kLowestSample;

void SetWeights(const QuantTable& table, float* weight) {
    for (int k = 0; k < 64; ++k)
        weight[k] = LargestSample(k / 8, k % 8) * static_cast<float>(table[k]);
    weight[0] = 0;
}

/// False for a mean whose negative a file could not hold beside it (T.81 allows differences of 11
/// bits).
bool HasPlainMean(const Block& block) {
    return std::abs(block[0]) < 1024;
}

/// How many of the block's rows, from the top, hold all that is not zero. At least one.
int RowsInUse(const Block& block) {
    int rows = 8;
    for (; rows > 1; --rows) {
        std::uint64_t row[2];
        std::memcpy(row, &block[8 * (rows - 1)], sizeof row);
        if ((row[0] | row[1]) != 0) break;
    }
    return rows;
}

/// How far a sample can be from the block's mean. Eight sums side by side, for vector code.
float Spread(const Block& block, int rows, const float* weight) {
    float sums[8] = {};
    for (int y = 0; y < 8 * rows; y += 8) {
        for (int x = 0; x < 8; ++x)
            sums[x] += std::abs(static_cast<float>(block[y + x])) * weight[y + x];
    }
    return ((sums[0] + sums[4]) + (sums[1] + sums[5])) +
           ((sums[2] + sums[6]) + (sums[3] + sums[7]));
}

}  // namespace

LumaPath::LumaPath(double factor, const QuantTable& source, const QuantTable& target)
    : scale_(source, target), factor_(static_cast<float>(factor)) {
    for (int k = 0; k < 64; ++k)
        gain_[k] = static_cast<float>(factor * source[k] / target[k]);
    dcOffset_ = static_cast<float>(1024 * (factor - 1) / target[0]);
    SetWeights(source, weight_);
    highestSource_ = factor == 0 ? -std::numeric_limits<float>::infinity()
                                 : kRange / std::max(factor_, 1.0F) + kLowestSample;
}

void LumaPath::Recolor(Block* blocks, std::size_t count) const {
    for (std::size_t index = 0; index < count; ++index)
        RecolorBlock(blocks[index]);
}

float LumaPath::Recolored(float sample) const {
    return Clamped(factor_ * (Clamped(sample) - kLowestSample) + kLowestSample);
}

void LumaPath::RecolorBlock(Block& block) const {
    const int rows = RowsInUse(block);
    const float spread = Spread(block, rows, weight_);
    const float mean = static_cast<float>(block[0]) * scale_.from[0] / 8;
    const Extent bound{mean - spread, mean + spread};
    if (bound.IsInside(kLowestSample, highestSource_)) {
        RecolorCoefficients(block, rows);
    } else if (bound.lowest >= highestSource_ || bound.highest <= kLowestSample) {
        FromFlat(Recolored(mean), scale_, block);
    } else {
        RecolorSamples(block);
    }
}

void LumaPath::RecolorCoefficients(Block& block, int rows) const {
    const float dc = static_cast<float>(block[0]) * gain_[0] + dcOffset_;
    for (int y = 0; y < 8 * rows; y += 8) {
        for (int k = y; k < y + 8; ++k)
            block[k] = NearestInt16(static_cast<float>(block[k]) * gain_[k]);
    }
    block[0] = NearestInt16(dc);
}

void LumaPath::RecolorSamples(Block& block) const {
    float samples[64];
    ToSamples(block, scale_, samples);
    if (Extent::Of(samples).IsInside(kLowestSample, highestSource_))
        return RecolorCoefficients(block, 8);
    for (float& sample : samples)
        sample = Recolored(sample);
    FromSamples(samples, scale_, block);
}

ChromaPath::ChromaPath(const ColourMap& map, const QuantTable (&source)[2],
                       const QuantTable (&target)[2])
    : smallPairs_(map), scale_{BlockScale(source[0], target[0]), BlockScale(source[1], target[1])} {
    for (int to = 0; to < 2; ++to) {
        for (int from = 0; from < 2; ++from) {
            matrix_[to][from] = static_cast<float>(map.chroma[to][from]);
            for (int k = 0; k < 64; ++k) {
                gain_[to][from][k] =
                    static_cast<float>(map.chroma[to][from] * source[from][k] / target[to][k]);
            }
        }
        SetWeights(source[to], weight_[to]);
    }
    const bool keepsSteps =
        source[0] == source[1] && source[0] == target[0] && source[1] == target[1];
    isExact_ = keepsSteps && map.ChromaIsQuarterTurn();
    drawsLots_ = keepsSteps && !isExact_;
}

void ChromaPath::Recolor(Block* cb, Block* cr, std::size_t count) const {
    SmallPairs::Lots lots(smallPairs_);
    for (std::size_t index = 0; index < count; ++index)
        RecolorPair(cb[index], cr[index], lots);
}

void ChromaPath::RecolorPair(Block& cb, Block& cr, SmallPairs::Lots& lots) const {
    const int rows = std::max(RowsInUse(cb), RowsInUse(cr));
    const float spreadB = Spread(cb, rows, weight_[0]), spreadR = Spread(cr, rows, weight_[1]);
    const float meanB = static_cast<float>(cb[0]) * scale_[0].from[0] / 8;
    const float meanR = static_cast<float>(cr[0]) * scale_[1].from[0] / 8;
    const float mostB = std::abs(meanB) + spreadB, mostR = std::abs(meanR) + spreadR;
    const auto isInside = [&](const float* row) {
        return std::abs(row[0]) * mostB + std::abs(row[1]) * mostR <= kHighestSample;
    };
    const bool isUnclamped = mostB <= kHighestSample && mostR <= kHighestSample &&
                             isInside(matrix_[0]) && isInside(matrix_[1]);
    if (isUnclamped || (isExact_ && HasPlainMean(cb) && HasPlainMean(cr))) {
        RecolorCoefficients(cb, cr, rows, lots);
    } else if (spreadB == 0 && spreadR == 0) {
        FromFlat(Clamped(Recolored(0, meanB, meanR)), scale_[0], cb);
        FromFlat(Clamped(Recolored(1, meanB, meanR)), scale_[1], cr);
    } else {
        RecolorSamples(cb, cr, lots);
    }
}

float ChromaPath::Recolored(int component, float cb, float cr) const {
    return matrix_[component][0] * Clamped(cb) + matrix_[component][1] * Clamped(cr);
}

void ChromaPath::RecolorCoefficients(Block& cb, Block& cr, int rows, SmallPairs::Lots& lots) const {
    for (int y = 0; y < 8 * rows; y += 8) {
        std::int16_t newCb[8], newCr[8];
        for (int x = 0; x < 8; ++x) {
            const float oldCb = cb[y + x], oldCr = cr[y + x];
            newCb[x] = NearestInt16(gain_[0][0][y + x] * oldCb + gain_[0][1][y + x] * oldCr);
            newCr[x] = NearestInt16(gain_[1][0][y + x] * oldCb + gain_[1][1][y + x] * oldCr);
        }
        for (int x = 0; x < 8 && drawsLots_; ++x) {
            if ((cb[y + x] | cr[y + x]) != 0) lots.Draw(cb[y + x], cr[y + x], newCb[x], newCr[x]);
        }
        std::copy_n(newCb, 8, cb + y);
        std::copy_n(newCr, 8, cr + y);
    }
}

void ChromaPath::RecolorSamples(Block& cb, Block& cr, SmallPairs::Lots& lots) const {
    float oldCb[64], oldCr[64], newCb[64], newCr[64];
    ToSamples(cb, scale_[0], oldCb);
    ToSamples(cr, scale_[1], oldCr);
    for (int k = 0; k < 64; ++k) {
        newCb[k] = Recolored(0, oldCb[k], oldCr[k]);
        newCr[k] = Recolored(1, oldCb[k], oldCr[k]);
    }
    const auto isInside = [](const float* samples) {
        return Extent::Of(samples).IsInside(kLowestSample, kHighestSample);
    };
    if (isInside(oldCb) && isInside(oldCr) && isInside(newCb) && isInside(newCr)) {
        return RecolorCoefficients(cb, cr, 8, lots);
    }
    for (int k = 0; k < 64; ++k) {
        newCb[k] = Clamped(newCb[k]);
        newCr[k] = Clamped(newCr[k]);
    }
    FromSamples(newCb, scale_[0], cb);
    FromSamples(newCr, scale_[1], cr);
}

}  // namespace colorizer
