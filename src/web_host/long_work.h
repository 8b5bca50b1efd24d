#pragma once

#include <cstddef>
#include <functional>

namespace morpho {

// How the host does what may take seconds: the pages of a web, the end of a save.
struct LongWork {
    // Runs the work to its end, on this or another thread. What the work throws is thrown on.
    std::function<void(const std::function<void()>& work)> run =
        [](const std::function<void()>& work) { work(); };
    // Hears how many of the pages found so far are done; comes from the thread of the work.
    std::function<void(std::size_t done, std::size_t found)> advanced = [](std::size_t,
                                                                           std::size_t) {};
};

}  // namespace morpho
