#include "windows_toolkit/label_peer.h"

#include "forms/form.h"
#include "windows_toolkit/window_text.h"

namespace morpho {

namespace {

// The system's own colour of links is too pale in some of its themes.
constexpr COLORREF kLinkColour = RGB(0, 0x66, 0xCC);

HFONT Underlined(HFONT font) {
    LOGFONTW shape{};
    GetObjectW(font, sizeof shape, &shape);
    shape.lfUnderline = TRUE;
    return CreateFontIndirectW(&shape);
}

}  // namespace

// The style makes the window one that the mouse meets, so that it has a tool tip.
LabelPeer::LabelPeer(Label& label, HWND parent, const PeerContext& context)
    : ControlPeer(label, parent, context, WC_STATICW, SS_NOTIFY), label_(label) {
    if (label.IsLink()) underlined_ = Underlined(context.font);
}

LabelPeer::~LabelPeer() {
    if (underlined_ != nullptr) DeleteObject(underlined_);
}

void LabelPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption) SetWindowTextW(Window(), MarkedCaptionOf(label_).c_str());
    if (changed & (aspect::kCaption | aspect::kPlace | aspect::kEnabled))
        InvalidateRect(Window(), nullptr, TRUE);
}

std::optional<LRESULT> LabelPeer::OnMessage(UINT message, WPARAM wide, LPARAM) {
    if (message == WM_PAINT) {
        Paint();
        return 0;
    }
    return label_.IsLink() ? OnLinkMessage(message, wide) : std::nullopt;
}

std::optional<LRESULT> LabelPeer::OnLinkMessage(UINT message, WPARAM wide) {
    switch (message) {
        case WM_SETCURSOR:
            if (label_.OwnerForm().Pointer() != MousePointer::kDefault) return {};
            SetCursor(LoadCursorW(nullptr, IDC_HAND));
            return TRUE;
        case WM_LBUTTONDOWN:
            SetFocus(Window());
            return 0;
        case WM_LBUTTONUP:
            Did([this] { label_.UserClick(); });
            return 0;
        case WM_KEYDOWN:
            if (wide != VK_SPACE) return {};
            Did([this] { label_.UserClick(); });
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            InvalidateRect(Window(), nullptr, TRUE);
            return {};
        default:
            return {};
    }
}

RECT LabelPeer::Area() const {
    RECT area;
    GetClientRect(Window(), &area);
    return area;
}

// A single line that is too long is better cut off than broken.
UINT LabelPeer::Format(int lineHeight) const {
    UINT format = Area().bottom >= 2 * lineHeight ? DT_WORDBREAK : DT_SINGLELINE;
    if (label_.TextAlignment() == Alignment::kRight) format |= DT_RIGHT;
    if (label_.TextAlignment() == Alignment::kCenter) format |= DT_CENTER;
    // The mark shows only where the key leads somewhere.
    if (!label_.IsLink() && label_.Buddy() == nullptr) format |= DT_HIDEPREFIX;
    return format;
}

COLORREF LabelPeer::TextColour() const {
    if (!IsEnabled()) return GetSysColor(COLOR_GRAYTEXT);
    return label_.IsLink() ? kLinkColour : GetSysColor(COLOR_BTNTEXT);
}

void LabelPeer::Paint() {
    PAINTSTRUCT paint;
    const HDC device = BeginPaint(Window(), &paint);
    RECT area = Area();
    FillRect(device, &area, GetSysColorBrush(COLOR_BTNFACE));
    const HGDIOBJ before =
        SelectObject(device, underlined_ != nullptr ? underlined_ : Context().font);
    TEXTMETRICW metrics;
    GetTextMetricsW(device, &metrics);
    const UINT format = Format(metrics.tmHeight);
    SetTextColor(device, TextColour());
    SetBkMode(device, TRANSPARENT);
    const std::wstring text = MarkedCaptionOf(label_);
    DrawTextW(device, text.c_str(), -1, &area, format);
    if (label_.IsLink() && GetFocus() == Window()) {
        DrawTextW(device, text.c_str(), -1, &area, format | DT_CALCRECT);
        DrawFocusRect(device, &area);
    }
    SelectObject(device, before);
    EndPaint(Window(), &paint);
}

}  // namespace morpho
