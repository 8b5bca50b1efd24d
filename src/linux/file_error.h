#pragma once

#include <string_view>

#include "platform/run_time_error.h"

namespace morpho {

// The error for a system call that failed with `code` (an errno value) on the file or folder at
// this path of the disk. `failure` completes the sentence: "could not be read".
RunTimeError FileError(int code, std::string_view diskPath, std::string_view failure);

// The same with a reason of our own.
RunTimeError FileError(ErrorNumber number, std::string_view diskPath, std::string_view failure,
                       std::string_view reason);

}  // namespace morpho
