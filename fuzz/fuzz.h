#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

// What every fuzz target uses. libFuzzer calls LLVMFuzzerTestOneInput with one input after another;
// replay.cpp calls it with files instead.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Ends the program, which both callers take for a failure, with a sentence.
inline void Require(bool condition, const char* sentence) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", sentence);
    std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}
