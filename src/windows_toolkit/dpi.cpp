#include "windows_toolkit/dpi.h"

namespace morpho {

namespace {

// A function of user32 that older systems lack.
template <typename Function>
Function* NewerCall(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

using SetThreadAwareness = void* WINAPI(void*);

}  // namespace

int ToPixels(int twips, int dpi) {
    return MulDiv(twips, dpi, 1440);
}

RECT ToPixels(const Rectangle& twips, int dpi) {
    return {ToPixels(twips.left, dpi), ToPixels(twips.top, dpi),
            ToPixels(twips.left + twips.width, dpi), ToPixels(twips.top + twips.height, dpi)};
}

int ToTwips(int pixels, int dpi) {
    return MulDiv(pixels, 1440, dpi);
}

Rectangle ToTwips(const RECT& pixels, int dpi) {
    return {ToTwips(pixels.left, dpi), ToTwips(pixels.top, dpi),
            ToTwips(pixels.right - pixels.left, dpi), ToTwips(pixels.bottom - pixels.top, dpi)};
}

int DpiOf(HWND window) {
    static auto* const ofWindow = NewerCall<UINT WINAPI(HWND)>("GetDpiForWindow");
    const UINT dpi = window != nullptr && ofWindow != nullptr ? ofWindow(window) : 0;
    if (dpi != 0) return static_cast<int>(dpi);
    const HDC screen = GetDC(nullptr);
    const int found = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return found;
}

SIZE ChromeOf(DWORD style, DWORD extendedStyle, int dpi) {
    static auto* const forDpi =
        NewerCall<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
    RECT around{};
    if (forDpi == nullptr || !forDpi(&around, style, FALSE, extendedStyle, static_cast<UINT>(dpi)))
        AdjustWindowRectEx(&around, style, FALSE, extendedStyle);
    return {around.right - around.left, around.bottom - around.top};
}

DpiAwareness::DpiAwareness() {
    static auto* const set = NewerCall<SetThreadAwareness>("SetThreadDpiAwarenessContext");
    if (set == nullptr) return;
    // -4: each monitor's, with scaled dialogs and frames (of 2017); -3: each monitor's.
    before_ = set(reinterpret_cast<void*>(static_cast<INT_PTR>(-4)));
    if (before_ == nullptr) before_ = set(reinterpret_cast<void*>(static_cast<INT_PTR>(-3)));
}

DpiAwareness::~DpiAwareness() {
    static auto* const set = NewerCall<SetThreadAwareness>("SetThreadDpiAwarenessContext");
    if (before_ != nullptr) set(before_);
}

}  // namespace morpho
