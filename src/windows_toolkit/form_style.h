#pragma once

#include "forms/form.h"
#include "windows_system/win32.h"

namespace morpho {

// A form's properties as those of a window.

DWORD StyleOf(const Form& form);
// A sizable window is in the task bar, so that it can be minimised although it has an owner.
DWORD ExtendedStyleOf(const Form& form);

WindowState StateOf(HWND window);
// The argument of ShowWindow for a state.
int ShowCommandOf(WindowState state);

// The monitor that shows most of this place, in pixels of the screen; else the nearest one.
MONITORINFO MonitorOf(const RECT& place);

// A new font for controls at `dpi` pixels an inch. The caller deletes it.
HFONT FormFont(int dpi);

}  // namespace morpho
