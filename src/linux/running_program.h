#pragma once

#include <cstdint>

namespace morpho {

// Whether a program of this number runs on this machine.
bool IsProgramRunning(std::uint64_t program);

}  // namespace morpho
