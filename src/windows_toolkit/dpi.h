#pragma once

#include "forms/geometry.h"
#include "windows_system/win32.h"

namespace morpho {

// Twips and pixels at `dpi` pixels an inch. Edges are rounded one by one, so neighbours stay
// neighbours.
int ToPixels(int twips, int dpi);
RECT ToPixels(const Rectangle& twips, int dpi);
int ToTwips(int pixels, int dpi);
Rectangle ToTwips(const RECT& pixels, int dpi);

// Pixels an inch: of the window's monitor; without a window, of the first monitor.
int DpiOf(HWND window);

// How much larger a window of these styles is than its client area, in pixels.
SIZE ChromeOf(DWORD style, DWORD extendedStyle, int dpi);

// As long as it lives, the windows that the thread makes are drawn at their monitor's resolution,
// whatever the program says of itself: a host may leave the scaling to the system, which blurs.
// Systems before Windows 10 do not know this and ignore it.
class DpiAwareness {
  public:
    DpiAwareness();
    ~DpiAwareness();
    DpiAwareness(const DpiAwareness&) = delete;
    DpiAwareness& operator=(const DpiAwareness&) = delete;

  private:
    void* before_ = nullptr;
};

}  // namespace morpho
