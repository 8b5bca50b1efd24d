#pragma once

#include <string>

#include "windows_system/win32.h"

namespace morpho {

// What is in a window that is shown, without its frame, as a PNG. Empty when there is no screen or
// no memory.
std::string PictureOfWindow(HWND window);

}  // namespace morpho
