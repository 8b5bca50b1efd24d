#pragma once

#include <bit>
#include <cstdint>

namespace colorizer {

/// The nearest whole number, halves to the even one. For |value| below 32768; beyond that the
/// result is some number. Adding 1.5 x 2^23 leaves the number in the last bits of the sum, which
/// compilers turn into vector code where they would call a function for std::nearbyint.
inline std::int16_t NearestInt16(float value) {
    constexpr float kShift = 12582912.0F;
    return static_cast<std::int16_t>(std::bit_cast<std::uint32_t>(value + kShift) -
                                     std::bit_cast<std::uint32_t>(kShift));
}

}  // namespace colorizer
