#include "colorizer/coefficient_path.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <numbers>
#include <random>

#include "colorizer/dct.h"

namespace colorizer {
namespace {

using Values = std::array<double, 64>;

double Basis(int frequency, int place) {
    const double scale = frequency == 0 ? std::sqrt(0.125) : 0.5;
    return scale * std::cos((2 * place + 1) * frequency * std::numbers::pi / 16);
}

/// The transforms as the standard writes them.
Values Transformed(const Values& from, bool isInverse) {
    Values to{};
    for (int at = 0; at < 64 * 64; ++at) {
        const int k = at / 64, place = at % 64;
        const double basis = Basis(k / 8, place / 8) * Basis(k % 8, place % 8);
        isInverse ? to[place] += from[k] * basis : to[k] += from[place] * basis;
    }
    return to;
}

double InRange(double sample) {
    return std::clamp(sample, -128.0, 127.0);
}

Values SamplesOf(const Block& block, const QuantTable& table) {
    Values coefficients;
    for (int k = 0; k < 64; ++k)
        coefficients[k] = block[k] * table[k];
    Values samples = Transformed(coefficients, true);
    std::transform(samples.begin(), samples.end(), samples.begin(), InRange);
    return samples;
}

/// The block has to be what the samples give, rounded; a mean at an end of the range may be rounded
/// outwards.
void ExpectBlock(const Block& block, Values samples, const QuantTable& table) {
    std::transform(samples.begin(), samples.end(), samples.begin(), InRange);
    const Values coefficients = Transformed(samples, false);
    const auto [lowest, highest] = std::minmax_element(samples.begin(), samples.end());
    const bool isAtEnd = *lowest == *highest && (*lowest == -128 || *lowest == 127);
    for (int k = 0; k < 64; ++k)
        EXPECT_NEAR(block[k], coefficients[k] / table[k], k == 0 && isAtEnd ? 1 : 0.501) << k;
}

QuantTable Steps(int first, int growth) {
    QuantTable table;
    for (int k = 0; k < 64; ++k)
        table[k] = static_cast<std::uint16_t>(first + growth * (k / 8 + k % 8));
    return table;
}

/// Half of the blocks are flat.
void FillAtRandom(Block& block, std::mt19937& random, int mean, int amplitude) {
    const auto upTo = [&](int limit) {
        return static_cast<std::int16_t>(static_cast<int>(random() % (2u * limit + 1)) - limit);
    };
    std::memset(block, 0, sizeof block);
    block[0] = upTo(mean);
    for (auto count = random() % 2 * (random() % 20); count > 0; --count)
        block[random() % 63 + 1] = upTo(amplitude);
}

TEST(LumaPath, GivesWhatTheSamplesGive) {
    std::mt19937 random(1);
    const QuantTable source = Steps(3, 2), target = Steps(5, 1);
    for (const double factor : {0.0, 0.3, 0.99, 1.0, 1.01, 1.7, 4.0}) {
        const LumaPath path(factor, source, target);
        for (int count = 0; count < 200; ++count) {
            Block block;
            FillAtRandom(block, random, 400, 1 + count);
            Values samples = SamplesOf(block, source);
            for (double& sample : samples)
                sample = factor * (sample + 128) - 128;
            path.Recolor(&block, 1);
            ExpectBlock(block, samples, target);
        }
    }
}

TEST(ChromaPath, GivesWhatTheSamplesGive) {
    std::mt19937 random(2);
    const QuantTable source[2] = {Steps(4, 1), Steps(3, 2)}, target[2] = {Steps(2, 2), Steps(5, 1)};
    for (const Adjustment& adjustment :
         {Adjustment{1, 1, 36}, {1, 1, 90}, {2, 2, -100}, {0.5, 0.7, 180}, {1, 0, 0}}) {
        const ColourMap map(adjustment);
        const ChromaPath path(map, source, target);
        for (int count = 0; count < 200; ++count) {
            Block cb, cr;
            FillAtRandom(cb, random, 250, 1 + count);
            FillAtRandom(cr, random, 250, 1 + count);
            const Values oldB = SamplesOf(cb, source[0]), oldR = SamplesOf(cr, source[1]);
            Values newB, newR;
            for (int k = 0; k < 64; ++k) {
                newB[k] = map.chroma[0][0] * oldB[k] + map.chroma[0][1] * oldR[k];
                newR[k] = map.chroma[1][0] * oldB[k] + map.chroma[1][1] * oldR[k];
            }
            path.Recolor(&cb, &cr, 1);
            ExpectBlock(cb, newB, target[0]);
            ExpectBlock(cr, newR, target[1]);
        }
    }
}

}  // namespace
}  // namespace colorizer
