#include "windows_toolkit/form_style.h"

namespace morpho {

namespace {

constexpr int kFontPixels = 11;  // at 96 pixels an inch: what the forms are laid out for

}  // namespace

DWORD StyleOf(const Form& form) {
    DWORD style = WS_POPUP | WS_CAPTION | WS_CLIPCHILDREN;
    if (form.HasCloseButton()) style |= WS_SYSMENU;
    if (form.Border() == BorderStyle::kSizable)
        style |= WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
    return style;
}

DWORD ExtendedStyleOf(const Form& form) {
    return form.Border() == BorderStyle::kSizable ? WS_EX_APPWINDOW | WS_EX_CONTROLPARENT
                                                  : WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;
}

WindowState StateOf(HWND window) {
    if (IsIconic(window)) return WindowState::kMinimized;
    return IsZoomed(window) ? WindowState::kMaximized : WindowState::kNormal;
}

int ShowCommandOf(WindowState state) {
    if (state == WindowState::kMinimized) return SW_SHOWMINIMIZED;
    return state == WindowState::kMaximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
}

MONITORINFO MonitorOf(const RECT& place) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor;
}

HFONT FormFont(int dpi) {
    LOGFONTW font{};
    font.lfHeight = -MulDiv(kFontPixels, dpi, 96);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    lstrcpynW(font.lfFaceName, L"Tahoma", LF_FACESIZE);
    return CreateFontIndirectW(&font);
}

}  // namespace morpho
