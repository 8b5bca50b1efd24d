#pragma once

#include <algorithm>

#include "windows_system/win32.h"

// They need <windows.h> before them, and the last one the minimum and the maximum.
#include <objbase.h>
#include <shlwapi.h>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

namespace morpho {

// GDI+ for as long as this lives. The library counts its users.
class GdiPlus {
  public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        started_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiPlus() {
        if (started_) Gdiplus::GdiplusShutdown(token_);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    bool Started() const { return started_; }

  private:
    ULONG_PTR token_ = 0;
    bool started_ = false;
};

}  // namespace morpho
