#include "windows_toolkit/list_box_peer.h"

#include "windows_system/wide.h"

namespace morpho {

ListBoxPeer::ListBoxPeer(ListBox& list, HWND parent, const PeerContext& context)
    : ControlPeer(list, parent, context, WC_LISTBOXW,
                  LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL,
                  WS_EX_CLIENTEDGE),
      list_(list) {}

int ListBoxPeer::Selected() const {
    return static_cast<int>(SendMessageW(Window(), LB_GETCURSEL, 0, 0));
}

void ListBoxPeer::OnCommand(WORD code) {
    if (code == LBN_SELCHANGE) Did([this] { list_.UserSelect(Selected()); });
}

void ListBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) {
        const auto add = [this](const std::string& text) {
            SendMessageW(Window(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(text).c_str()));
        };
        entries_.Write(list_, add, [this] { SendMessageW(Window(), LB_RESETCONTENT, 0, 0); });
    }
    if ((changed & (aspect::kValue | aspect::kItems)) && Selected() != list_.ListIndex())
        SendMessageW(Window(), LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0);
}

}  // namespace morpho
