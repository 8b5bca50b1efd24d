#include "web_host/parallel.h"

#include <algorithm>
#include <future>
#include <vector>

namespace morpho {

namespace {

constexpr std::size_t kThreads = 8;

}  // namespace

void InParallel(std::size_t count, const std::function<void(std::size_t)>& work) {
    std::vector<std::future<void>> shares;
    for (std::size_t first = 0; first < std::min(count, kThreads); ++first) {
        // Deferred only where no more threads can be had.
        shares.push_back(std::async(std::launch::async | std::launch::deferred, [=, &work] {
            for (std::size_t i = first; i < count; i += kThreads)
                work(i);
        }));
    }
    for (std::future<void>& share : shares)
        share.get();
}

}  // namespace morpho
