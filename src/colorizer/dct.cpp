#include "colorizer/dct.h"

#include <algorithm>
#include <cstdlib>

namespace colorizer {

namespace {

// cos(k pi / 16) / 2
constexpr float kC1 = 0.490392640F, kC2 = 0.461939766F, kC3 = 0.415734806F, kC4 = 0.353553391F;
constexpr float kC5 = 0.277785117F, kC6 = 0.191341716F, kC7 = 0.097545161F;

// Each pass transforms the eight columns side by side, which compilers turn into vector code.

void ForwardColumns(float* v) {
    for (int x = 0; x < 8; ++x) {
        float* const p = v + x;
        const float s0 = p[0] + p[56], s1 = p[8] + p[48], s2 = p[16] + p[40], s3 = p[24] + p[32];
        const float d0 = p[0] - p[56], d1 = p[8] - p[48], d2 = p[16] - p[40], d3 = p[24] - p[32];
        p[0] = kC4 * ((s0 + s3) + (s1 + s2));
        p[32] = kC4 * ((s0 + s3) - (s1 + s2));
        p[16] = kC2 * (s0 - s3) + kC6 * (s1 - s2);
        p[48] = kC6 * (s0 - s3) - kC2 * (s1 - s2);
        p[8] = kC1 * d0 + kC3 * d1 + kC5 * d2 + kC7 * d3;
        p[24] = kC3 * d0 - kC7 * d1 - kC1 * d2 - kC5 * d3;
        p[40] = kC5 * d0 - kC1 * d1 + kC7 * d2 + kC3 * d3;
        p[56] = kC7 * d0 - kC5 * d1 + kC3 * d2 - kC1 * d3;
    }
}

void InverseColumns(float* v) {
    for (int x = 0; x < 8; ++x) {
        float* const p = v + x;
        const float a0 = kC4 * (p[0] + p[32]), a1 = kC4 * (p[0] - p[32]);
        const float b0 = kC2 * p[16] + kC6 * p[48], b1 = kC6 * p[16] - kC2 * p[48];
        const float e0 = a0 + b0, e1 = a1 + b1, e2 = a1 - b1, e3 = a0 - b0;
        const float o0 = kC1 * p[8] + kC3 * p[24] + kC5 * p[40] + kC7 * p[56];
        const float o1 = kC3 * p[8] - kC7 * p[24] - kC1 * p[40] - kC5 * p[56];
        const float o2 = kC5 * p[8] - kC1 * p[24] + kC7 * p[40] + kC3 * p[56];
        const float o3 = kC7 * p[8] - kC5 * p[24] + kC3 * p[40] - kC1 * p[56];
        p[0] = e0 + o0;
        p[8] = e1 + o1;
        p[16] = e2 + o2;
        p[24] = e3 + o3;
        p[32] = e3 - o3;
        p[40] = e2 - o2;
        p[48] = e1 - o1;
        p[56] = e0 - o0;
    }
}

void Transpose(float* v) {
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < y; ++x)
            std::swap(v[8 * y + x], v[8 * x + y]);
    }
}

}  // namespace

void ForwardDct(float* block) {
    ForwardColumns(block);
    Transpose(block);
    ForwardColumns(block);
    Transpose(block);
}

void InverseDct(float* block) {
    InverseColumns(block);
    Transpose(block);
    InverseColumns(block);
    Transpose(block);
}

float LargestSample(int v, int u) {
    // The largest of |cos((2 i + 1) u pi / 16)| over i, times the scale of the transform.
    static constexpr float kLargest[8] = {kC4, kC1, kC2, kC1, kC4, kC1, kC2, kC1};
    return kLargest[v] * kLargest[u];
}

}  // namespace colorizer
