#pragma once

#include <cstdint>

#include "colorizer/colour_map.h"

namespace colorizer {

/// Rounds small pairs of Cb and Cr coefficients so that a chain of passes does not drift in hue.
///
/// The pair (1, 0) turned by 36 degrees is nearest to (1, 1), at 45 degrees, and so it is the next
/// time: fine detail would turn too far in every pass. Here some pairs go to a neighbour on the
/// other side of the exact angle instead. Which ones is drawn by lot, from numbers that only depend
/// on the picture.
class SmallPairs {
  public:
    explicit SmallPairs(const ColourMap& map);

    /// One run over a row of blocks. `newCb` and `newCr`: the old pair's nearest result, replaced
    /// where the lot says so.
    class Lots {
      public:
        explicit Lots(const SmallPairs& pairs) : pairs_(pairs) {}

        void Draw(int oldCb, int oldCr, std::int16_t& newCb, std::int16_t& newCr) {
            const unsigned row = static_cast<unsigned>(oldCb + kReach),
                           column = static_cast<unsigned>(oldCr + kReach);
            if (row >= kSide || column >= kSide) return;
            const Other& other = pairs_.others_[row][column];
            state_ = state_ * 1664525 + 1013904223 + row * kSide + column;
            if (state_ >> 16 >= other.chance) return;
            newCb = other.cb;
            newCr = other.cr;
        }

      private:
        const SmallPairs& pairs_;
        std::uint32_t state_ = 1;
    };

  private:
    static constexpr int kReach = 3;  ///< larger pairs have their angle well enough
    static constexpr unsigned kSide = 2 * kReach + 1;

    /// The neighbour, and how often of 65536 times it is taken.
    struct Other {
        std::uint16_t chance = 0;
        std::int16_t cb = 0, cr = 0;
    };

    static Other FindOther(double cb, double cr);

    Other others_[kSide][kSide];
};

}  // namespace colorizer
