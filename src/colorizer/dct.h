#pragma once

namespace colorizer {

/// The 8 x 8 transforms of ITU-T T.81, A.3.3, in place on 64 values, row by row. The first
/// coefficient is eight times the mean. Plain single precision in a fixed order: the same result
/// everywhere.
void ForwardDct(float* block);
void InverseDct(float* block);

/// The largest absolute value that a coefficient of 1 at row `v`, column `u` gives to any sample.
float LargestSample(int v, int u);

}  // namespace colorizer
