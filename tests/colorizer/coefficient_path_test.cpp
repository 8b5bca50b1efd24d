#include "colorizer/coefficient_path.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <numbers>
#include <random>

#include "colorizer/dct.h"

namespace colorizer {
namespace {

double Basis(int frequency, int place) {
    const double scale = frequency == 0 ? std::sqrt(0.125) : 0.5;
    return scale * std::cos((2 * place + 1) * frequency * std::numbers::pi / 16);
}

/// The transforms as the standard writes them.
std::array<double, 64> Transformed(const std::array<double, 64>& from, bool isInverse) {
    std::array<double, 64> to{};
    for (int at = 0; at < 64 * 64; ++at) {
        const int k = at / 64, place = at % 64;
        const double basis = Basis(k / 8, place / 8) * Basis(k % 8, place % 8);
        isInverse ? to[place] += from[k] * basis : to[k] += from[place] * basis;
    }
    return to;
}

std::array<double, 64> SamplesOf(const Block& block, const QuantTable& table) {
    std::array<double, 64> coefficients;
    for (int k = 0; k < 64; ++k)
        coefficients[k] = block[k] * table[k];
    std::array<double, 64> samples = Transformed(coefficients, true);
    for (double& sample : samples)
        sample = std::clamp(sample, -128.0, 127.0);
    return samples;
}

/// The block has to be what the samples give, rounded; a mean at an end of the range may be rounded
/// outwards.
void ExpectBlock(const Block& block, std::array<double, 64> samples, const QuantTable& table) {
    for (double& sample : samples)
        sample = std::clamp(sample, -128.0, 127.0);
    const auto coefficients = Transformed(samples, false);
    const bool isAtEnd = std::all_of(samples.begin(), samples.end(), [&](double sample) {
        return sample == samples[0] && (sample == -128 || sample == 127);
    });
    for (int k = 0; k < 64; ++k) {
        EXPECT_NEAR(block[k], coefficients[k] / table[k], k == 0 && isAtEnd ? 1 : 0.501) << k;
    }
}

QuantTable Steps(int first, int growth) {
    QuantTable table;
    for (int k = 0; k < 64; ++k)
        table[k] = static_cast<std::uint16_t>(first + growth * (k / 8 + k % 8));
    return table;
}

void FillAtRandom(Block& block, std::mt19937& random, int mean, int amplitude) {
    std::memset(block, 0, sizeof block);
    const auto upTo = [&](int limit) {
        return static_cast<int>(random() % (2u * limit + 1)) - limit;
    };
    block[0] = static_cast<std::int16_t>(upTo(mean));
    for (int count = static_cast<int>(random() % 20); count > 0; --count) {
        block[random() % 63 + 1] = static_cast<std::int16_t>(upTo(amplitude));
    }
}

TEST(Dct, LargestSampleIsReachedAndNeverPassed) {
    for (int k = 0; k < 64; ++k) {
        std::array<double, 64> coefficients{};
        coefficients[k] = 1;
        double largest = 0;
        for (const double sample : Transformed(coefficients, true))
            largest = std::max(largest, std::abs(sample));
        EXPECT_NEAR(LargestSample(k / 8, k % 8), largest, 1e-6) << k;
    }
}

TEST(LumaPath, GivesWhatTheSamplesGive) {
    std::mt19937 random(1);
    const QuantTable source = Steps(3, 2), target = Steps(5, 1);
    for (const double factor : {0.0, 0.3, 0.99, 1.0, 1.01, 1.7, 4.0}) {
        const LumaPath path(factor, source, target);
        for (int count = 0; count < 60; ++count) {
            Block block;
            FillAtRandom(block, random, 400, 1 + 2 * count);
            auto samples = SamplesOf(block, source);
            for (double& sample : samples)
                sample = factor * (sample + 128) - 128;
            path.Recolor(&block, 1);
            ExpectBlock(block, samples, target);
        }
    }
}

TEST(LumaPath, ClampsFromTheEdgeOfTheRangeOn) {
    // One wave on a mean of 0: at 127 it just fits in, a step further it does not. Brightness 1 is
    // taken as it is by a file that keeps its tables, so here it shows what clamping alone does.
    const QuantTable ones = Steps(1, 0);
    const LumaPath path(1, ones, ones);
    for (int k = 1; k < 64; ++k) {
        const int most = static_cast<int>(127 / LargestSample(k / 8, k % 8));
        for (const int value : {most, most + 1, -most, -most - 1, 3 * most}) {
            Block block{}, before{};
            block[k] = before[k] = static_cast<std::int16_t>(value);
            path.Recolor(&block, 1);
            EXPECT_TRUE(std::abs(value) != most || std::memcmp(block, before, sizeof block) == 0)
                << k;
            ExpectBlock(block, SamplesOf(before, ones), ones);
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
        for (int count = 0; count < 60; ++count) {
            Block cb, cr;
            FillAtRandom(cb, random, 250, 1 + 2 * count);
            FillAtRandom(cr, random, 250, 1 + 2 * count);
            auto samplesB = SamplesOf(cb, source[0]), samplesR = SamplesOf(cr, source[1]);
            for (int k = 0; k < 64; ++k) {
                const double oldB = samplesB[k], oldR = samplesR[k];
                samplesB[k] = map.chroma[0][0] * oldB + map.chroma[0][1] * oldR;
                samplesR[k] = map.chroma[1][0] * oldB + map.chroma[1][1] * oldR;
            }
            path.Recolor(&cb, &cr, 1);
            ExpectBlock(cb, samplesB, target[0]);
            ExpectBlock(cr, samplesR, target[1]);
        }
    }
}

TEST(ChromaPath, TurnsSmallPairsByTheRightAngleOnAverage) {
    // Simple rounding would carry every (1, 0) by 45 degrees a pass and end 90 degrees off after
    // ten.
    const QuantTable steps = Steps(10, 0);
    const ChromaPath path(ColourMap({1, 1, 36}), {steps, steps}, {steps, steps});
    std::vector<std::array<std::int16_t, 64>> cb(1000), cr(1000);
    for (auto& block : cb)
        block[9] = block[2] = 1;
    double sumB = 0;
    for (int pass = 0; pass < 10; ++pass) {
        path.Recolor(reinterpret_cast<Block*>(cb.data()), reinterpret_cast<Block*>(cr.data()),
                     cb.size());
    }
    for (const auto& block : cb)
        sumB += block[9] + block[2];
    EXPECT_GT(sumB, 800);
}

}  // namespace
}  // namespace colorizer
