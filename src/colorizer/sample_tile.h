#pragma once

#include <vector>

#include "colorizer/block_samples.h"
#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// True when the components have the same sampling factors.
bool AreSampledAlike(const std::vector<JpegComponent*>& components);

/// A square of the picture in which every component has whole blocks: one block each where all are
/// sampled alike, otherwise what one MCU covers. Components that are sampled unlike meet on a grid
/// as fine as needed for every one: a coarser one is repeated on the way there and averaged on the
/// way back.
class SampleTile {
  public:
    /// `targets`: the tables for the way back, one for each component. Both must outlive the tile.
    SampleTile(std::vector<JpegComponent*> components, const std::vector<QuantTable>& targets);

    std::size_t TilesWide() const;
    std::size_t TilesHigh() const;

    /// Values of one component, row by row, from the middle grey. Both ways clamp to the range.
    float* Values(std::size_t component) { return parts_[component].values.data(); }
    std::size_t ValueCount() const { return 64 * wide_ * high_; }

    void Load(std::size_t tileX, std::size_t tileY);
    void Store(std::size_t tileX, std::size_t tileY);

  private:
    struct Part {
        JpegComponent* component;
        BlockScale scale;
        std::size_t wide, high;  ///< blocks in a tile
        std::vector<float> values{};
    };

    void Spread(const Part& part, const float* samples, std::size_t blockX, std::size_t blockY,
                float* values) const;
    void Average(const Part& part, const float* values, std::size_t blockX, std::size_t blockY,
                 float* samples) const;

    std::vector<Part> parts_;
    std::size_t wide_ = 1, high_ = 1;  ///< the grid, in blocks of 8 x 8 points
};

}  // namespace colorizer
