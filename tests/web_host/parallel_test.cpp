#include "web_host/parallel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <vector>

#include "platform/run_time_error.h"

namespace morpho::test {
namespace {

TEST(InParallelTest, CallsEachOnceAndThrowsTheFirstError) {
    std::vector<std::atomic<int>> calls(100);
    InParallel(calls.size(), [&](std::size_t i) { ++calls[i]; });
    EXPECT_TRUE(std::all_of(calls.begin(), calls.end(), [](int count) { return count == 1; }));
    const auto fail = [](std::size_t i) {
        if (i == 3) throw RunTimeError(ErrorNumber::kDeviceIo, "third");
    };
    EXPECT_THROW(InParallel(9, fail), RunTimeError);
}

}  // namespace
}  // namespace morpho::test
