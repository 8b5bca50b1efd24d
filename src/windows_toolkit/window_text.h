#pragma once

#include <string>

#include "forms/control.h"
#include "windows_system/win32.h"

namespace morpho {

// A control's caption with "&" before its access key and every other "&" doubled, as buttons and
// DrawText take it.
std::wstring MarkedCaptionOf(const Control& control);

// The text of a window, in UTF-8.
std::string TextOf(HWND window);

// The program or library that this address is part of.
HINSTANCE ModuleOf(const void* address);

}  // namespace morpho
