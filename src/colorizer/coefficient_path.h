#pragma once

#include <cstddef>

#include "colorizer/block_samples.h"
#include "colorizer/colour_map.h"
#include "colorizer/small_pairs.h"

namespace colorizer {

// The formula is linear up to its clamping, and so is the DCT: where nothing is clamped,
// coefficients are recoloured without a transform. Whether anything is clamped is decided block by
// block.
//
// A coefficient c at (v, u) with step q adds at most |c| q LargestSample(v, u) to any sample. The
// sum of that over a block's 63 AC coefficients is its spread: no sample is further than that from
// the block's mean, which is an eighth of the DC coefficient. (The sums are rounded, by less than a
// thousandth of a level in the range that counts.) So where mean - spread and mean + spread lie in
// the range, nothing can be clamped; where both lie beyond the same end, the block is one flat
// colour; and otherwise the samples are worked out and looked at. They are clamped, recoloured,
// clamped and transformed back only where one of them, before or after, really leaves the range.

/// Recolours luma blocks.
class LumaPath {
  public:
    LumaPath(double factor, const QuantTable& source, const QuantTable& target);

    void Recolor(Block* blocks, std::size_t count) const;

  private:
    void RecolorBlock(Block& block) const;
    float Recolored(float sample) const;
    void RecolorCoefficients(Block& block, int rows) const;
    void RecolorSamples(Block& block) const;

    BlockScale scale_;
    float factor_;
    float gain_[64];       ///< for coefficients, with the change of steps
    float dcOffset_;       ///< the DC term's share of Y' = b Y, whose zero is at -128
    float weight_[64];     ///< each coefficient's share of the spread
    float highestSource_;  ///< up to here a sample stays in the range, before and after
};

/// Recolours pairs of Cb and Cr blocks.
class ChromaPath {
  public:
    ChromaPath(const ColourMap& map, const QuantTable (&source)[2], const QuantTable (&target)[2]);

    void Recolor(Block* cb, Block* cr, std::size_t count) const;

  private:
    void RecolorPair(Block& cb, Block& cr, SmallPairs::Lots& lots) const;
    float Recolored(int component, float cb, float cr) const;  ///< not yet clamped
    void RecolorCoefficients(Block& cb, Block& cr, int rows, SmallPairs::Lots& lots) const;
    void RecolorSamples(Block& cb, Block& cr, SmallPairs::Lots& lots) const;

    SmallPairs smallPairs_;
    BlockScale scale_[2];
    float matrix_[2][2];
    float gain_[2][2][64];  ///< the matrix for each coefficient, with the change of steps
    float weight_[2][64];
    bool isExact_;  ///< whole blocks are swapped or negated: nothing to round, and nothing to clamp
    bool drawsLots_;  ///< both have the same steps, before and after
};

}  // namespace colorizer
