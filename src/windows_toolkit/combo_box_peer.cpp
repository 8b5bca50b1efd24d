#include "windows_toolkit/combo_box_peer.h"

#include "windows_system/wide.h"

namespace morpho {

namespace {

constexpr int kRowsInSight = 12;
constexpr WPARAM kSelectionField = static_cast<WPARAM>(-1);

}  // namespace

ComboBoxPeer::ComboBoxPeer(ComboBox& box, HWND parent, const PeerContext& context)
    : ControlPeer(box, parent, context, WC_COMBOBOXW,
                  CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL),
      box_(box) {}

int ComboBoxPeer::Selected() const {
    return static_cast<int>(SendMessageW(Window(), CB_GETCURSEL, 0, 0));
}

void ComboBoxPeer::Picked() {
    Did([this] { box_.UserSelect(Selected()); });
}

// While the list is open, the arrow keys go through it without picking.
void ComboBoxPeer::OnCommand(WORD code) {
    if (code == CBN_SELENDCANCEL) Show(aspect::kValue);
    if (code == CBN_CLOSEUP) Picked();
    if (code == CBN_SELCHANGE && !SendMessageW(Window(), CB_GETDROPPEDSTATE, 0, 0)) Picked();
}

// A wheel that scrolls past a drop-down must not pick another entry.
std::optional<LRESULT> ComboBoxPeer::OnMessage(UINT message, WPARAM wide, LPARAM low) {
    if (message != WM_MOUSEWHEEL || GetFocus() == Window()) return {};
    return SendMessageW(GetParent(Window()), message, wide, low);
}

void ComboBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kPlace) WriteHeights();
    if (changed & aspect::kItems) {
        const auto add = [this](const std::string& text) {
            SendMessageW(Window(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(text).c_str()));
        };
        entries_.Write(box_, add, [this] { SendMessageW(Window(), CB_RESETCONTENT, 0, 0); });
    }
    if ((changed & (aspect::kValue | aspect::kItems)) && Selected() != box_.ListIndex())
        SendMessageW(Window(), CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()), 0);
}

// The window's height is that of the open list. The closed one follows from that of a row.
void ComboBoxPeer::WriteHeights() {
    const auto row = static_cast<int>(SendMessageW(Window(), CB_GETITEMHEIGHT, 0, 0));
    RECT closed;
    GetWindowRect(Window(), &closed);
    const auto field =
        static_cast<int>(SendMessageW(Window(), CB_GETITEMHEIGHT, kSelectionField, 0));
    const int border = closed.bottom - closed.top - field;
    const int height = Pixels(box_.Place().height);
    SendMessageW(Window(), CB_SETITEMHEIGHT, kSelectionField, height - border);
    SetWindowPos(Window(), nullptr, 0, 0, Pixels(box_.Place().width), height + kRowsInSight * row,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace morpho
