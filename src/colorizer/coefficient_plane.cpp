#include "colorizer/coefficient_plane.h"

#include <new>

namespace colorizer {

CoefficientPlane::CoefficientPlane(std::size_t blocksWide, std::size_t blocksHigh)
    : memory_(std::calloc(blocksWide * blocksHigh, sizeof(Block))), rows_(blocksHigh) {
    if (!memory_) throw std::bad_alloc();
    Block* row = static_cast<Block*>(memory_.get());
    for (Block*& start : rows_) {
        start = row;
        row += blocksWide;
    }
}

}  // namespace colorizer
