#include "windows_toolkit/text_box_peer.h"

#include <windowsx.h>

#include "windows_system/wide.h"
#include "windows_toolkit/window_text.h"

namespace morpho {

namespace {

DWORD StyleOf(const TextBox& box) {
    if (box.BoxKind() == TextBox::Kind::kSingleLine) return ES_AUTOHSCROLL;
    return ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL;
}

// The end of a line as the window keeps it: CR LF.
std::wstring LinesOf(const std::string& text) {
    std::wstring lines;
    for (const wchar_t unit : Wide(text)) {
        if (unit == L'\n' && !lines.ends_with(L'\r')) lines += L'\r';
        lines += unit;
    }
    return lines;
}

}  // namespace

TextBoxPeer::TextBoxPeer(TextBox& box, HWND parent, const PeerContext& context)
    : ControlPeer(box, parent, context, WC_EDITW, StyleOf(box), WS_EX_CLIENTEDGE), box_(box) {
    SendMessageW(Window(), EM_SETLIMITTEXT, 0, 0);
}

// Whether it was typed, pasted or taken back.
void TextBoxPeer::OnCommand(WORD code) {
    if (code == EN_CHANGE) Did([this] { box_.UserEdit(TextOf(Window())); });
}

// A text that is only read is no less a text.
HBRUSH TextBoxPeer::OnColour(HDC device) {
    if (!IsEnabled()) return nullptr;
    SetBkColor(device, GetSysColor(COLOR_WINDOW));
    SetTextColor(device, GetSysColor(COLOR_WINDOWTEXT));
    return GetSysColorBrush(COLOR_WINDOW);
}

std::optional<LRESULT> TextBoxPeer::OnMessage(UINT message, WPARAM wide, LPARAM) {
    if (message == WM_CHAR) return OnCharacter(static_cast<wchar_t>(wide));
    const bool vertical = message == WM_KEYDOWN && (wide == VK_UP || wide == VK_DOWN);
    if (vertical && box_.UserStep(wide == VK_UP ? 1 : -1)) return 0;
    return {};
}

// A character outside the first 65,536 comes in two halves, and is inserted as a whole.
std::optional<LRESULT> TextBoxPeer::OnCharacter(wchar_t unit) {
    if (IS_HIGH_SURROGATE(unit)) {
        firstHalf_ = unit;
        return 0;
    }
    const wchar_t character[] = {firstHalf_, unit, 0};
    firstHalf_ = 0;
    if (character[0] == 0 || !IS_LOW_SURROGATE(unit)) return {};
    SendMessageW(Window(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(character));
    return 0;
}

void TextBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kValue) WriteText();
    if (changed & aspect::kSelectAll) SendMessageW(Window(), EM_SETSEL, 0, -1);
}

// The cursor stays before what it stood before.
void TextBoxPeer::WriteText() {
    const std::wstring text = LinesOf(box_.Text());
    if (TextOf(Window()) == Narrow(text)) return;
    DWORD start = 0, end = 0;
    SendMessageW(Window(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    const int behind = GetWindowTextLengthW(Window()) - static_cast<int>(end);
    SetWindowTextW(Window(), text.c_str());
    const int at = static_cast<int>(text.size()) - behind;
    SendMessageW(Window(), EM_SETSEL, static_cast<WPARAM>(at), at);
}

}  // namespace morpho
