#include "windows_toolkit/frame_peer.h"

#include "windows_toolkit/window_text.h"

namespace morpho {

namespace {

// Twips.
constexpr int kTitleIndent = 120;
constexpr int kTitleGap = 45;

// The system's group box is no container: it does not paint behind the controls in it.
const wchar_t* FrameClass() {
    static const wchar_t* const name = [] {
        WNDCLASSEXW frame{};
        frame.cbSize = sizeof frame;
        frame.lpfnWndProc = DefWindowProcW;
        frame.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        frame.hInstance = GetModuleHandleW(nullptr);
        frame.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        frame.lpszClassName = L"MorphoFrame";
        RegisterClassExW(&frame);
        return frame.lpszClassName;
    }();
    return name;
}

}  // namespace

FramePeer::FramePeer(Frame& frame, HWND parent, const PeerContext& context)
    : ControlPeer(frame, parent, context, FrameClass(), WS_CLIPCHILDREN, WS_EX_CONTROLPARENT) {}

void FramePeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption) SetWindowTextW(Window(), MarkedCaptionOf(Model()).c_str());
    if (changed & (aspect::kCaption | aspect::kPlace | aspect::kEnabled))
        InvalidateRect(Window(), nullptr, TRUE);
}

std::optional<LRESULT> FramePeer::OnMessage(UINT message, WPARAM, LPARAM) {
    if (message != WM_PAINT) return {};
    Paint();
    return 0;
}

void FramePeer::Paint() {
    PAINTSTRUCT paint;
    const HDC device = BeginPaint(Window(), &paint);
    RECT area;
    GetClientRect(Window(), &area);
    const HGDIOBJ before = SelectObject(device, Context().font);
    if (!Model().Caption().empty()) PaintBox(device, area);
    SelectObject(device, before);
    EndPaint(Window(), &paint);
}

void FramePeer::PaintBox(HDC device, const RECT& area) {
    const std::wstring title = MarkedCaptionOf(Model());
    RECT text{Pixels(kTitleIndent), 0, area.right, 0};
    DrawTextW(device, title.c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT);
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, GetSysColor(IsEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawTextW(device, title.c_str(), -1, &text, DT_SINGLELINE);
    ExcludeClipRect(device, text.left - Pixels(kTitleGap), text.top, text.right + Pixels(kTitleGap),
                    text.bottom);
    const RECT box{area.left, (text.bottom - text.top) / 2, area.right, area.bottom};
    FrameRect(device, &box, GetSysColorBrush(COLOR_3DSHADOW));
}

}  // namespace morpho
