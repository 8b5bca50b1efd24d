#pragma once

#include <string_view>

#include "platform/run_time_error.h"
#include "windows_system/win32.h"

namespace morpho {

// The error for a system call that failed with `code` (of GetLastError) on the file or folder at
// this path. `failure` completes the sentence: "could not be read".
RunTimeError SystemError(DWORD code, std::string_view path, std::string_view failure);

// The same with a reason of our own.
RunTimeError SystemError(ErrorNumber number, std::string_view path, std::string_view failure,
                         std::string_view reason);

// The system's text for an error code, without its line end; empty when it has none.
std::string SystemText(DWORD code);

}  // namespace morpho
