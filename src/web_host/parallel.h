#pragma once

#include <cstddef>
#include <functional>

namespace morpho {

// Calls `work` with 0 to count - 1, several at a time and in no order: for work that mostly waits
// for the disk. When a call throws, no further ones begin; its exception is thrown once those that
// had begun are done.
void InParallel(std::size_t count, const std::function<void(std::size_t)>& work);

}  // namespace morpho
