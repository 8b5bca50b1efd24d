#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace colorizer {

/// Quantised DCT coefficients of one 8 x 8 block, row by row.
using Block = std::int16_t[64];

/// The blocks of one JPEG component. Zero at first; the memory comes from the system only where it
/// is written to.
class CoefficientPlane {
  public:
    CoefficientPlane() = default;
    /// Throws std::bad_alloc.
    CoefficientPlane(std::size_t blocksWide, std::size_t blocksHigh);

    /// Pointers to the rows of blocks, the shape in which libjpeg reads and writes them.
    Block** Rows() { return rows_.data(); }
    Block* Row(std::size_t y) { return rows_[y]; }
    std::size_t Height() const { return rows_.size(); }

  private:
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    std::unique_ptr<void, Free> memory_;
    std::vector<Block*> rows_;
};

}  // namespace colorizer
