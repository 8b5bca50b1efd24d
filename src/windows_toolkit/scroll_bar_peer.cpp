#include "windows_toolkit/scroll_bar_peer.h"

namespace morpho {

ArrowsPeer::ArrowsPeer(ScrollBar& bar, HWND parent, const PeerContext& context)
    : ControlPeer(bar, parent, context, UPDOWN_CLASSW, 0), bar_(bar) {}

void ArrowsPeer::Step(int steps) {
    Did([&] { bar_.UserSet(bar_.Value() + steps * bar_.Limits().smallChange); });
}

// The answer keeps the arrows from moving the value themselves. An arrow that is held down goes
// faster with time, by more than one step at once.
std::optional<LRESULT> ArrowsPeer::OnNotify(const NMHDR& header) {
    if (header.code != static_cast<UINT>(UDN_DELTAPOS)) return {};
    Step(reinterpret_cast<const NMUPDOWN&>(header).iDelta);
    return TRUE;
}

// The control has keys only beside a text field of its own.
std::optional<LRESULT> ArrowsPeer::OnMessage(UINT message, WPARAM wide, LPARAM) {
    if (message == WM_GETDLGCODE) return DLGC_WANTARROWS;
    if (message != WM_KEYDOWN || (wide != VK_UP && wide != VK_DOWN)) return {};
    Step(wide == VK_UP ? 1 : -1);
    return 0;
}

void ArrowsPeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kValue)) return;
    const ScrollBar::Range& limits = bar_.Limits();
    SendMessageW(Window(), UDM_SETRANGE32, static_cast<WPARAM>(limits.minimum), limits.maximum);
    SendMessageW(Window(), UDM_SETPOS32, 0, bar_.Value());
}

ScrollBarPeer::ScrollBarPeer(ScrollBar& bar, HWND parent, const PeerContext& context)
    : ControlPeer(bar, parent, context, WC_SCROLLBARW,
                  bar.BarShape() == ScrollBar::Shape::kHorizontal ? SBS_HORZ : SBS_VERT),
      bar_(bar) {}

void ScrollBarPeer::OnScroll(WORD code) {
    if (code != SB_ENDSCROLL) Did([&] { bar_.UserSet(ValueAfter(code)); });
}

int ScrollBarPeer::ValueAfter(WORD code) const {
    const ScrollBar::Range& limits = bar_.Limits();
    switch (code) {
        case SB_LINEUP:
            return bar_.Value() - limits.smallChange;
        case SB_LINEDOWN:
            return bar_.Value() + limits.smallChange;
        case SB_PAGEUP:
            return bar_.Value() - limits.largeChange;
        case SB_PAGEDOWN:
            return bar_.Value() + limits.largeChange;
        case SB_TOP:
            return limits.minimum;
        case SB_BOTTOM:
            return limits.maximum;
        default: {
            // The thumb. The message itself has 16 bits of the position only.
            SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
            GetScrollInfo(Window(), SB_CTL, &info);
            return info.nTrackPos;
        }
    }
}

// The thumb is as long as a page, which lies within the bar's range.
void ScrollBarPeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kValue)) return;
    const ScrollBar::Range& limits = bar_.Limits();
    SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    GetScrollInfo(Window(), SB_CTL, &info);
    const SCROLLINFO wanted{sizeof info,
                            SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL,
                            limits.minimum,
                            limits.maximum + limits.largeChange - 1,
                            static_cast<UINT>(limits.largeChange),
                            bar_.Value(),
                            0};
    if (info.nMin != wanted.nMin || info.nMax != wanted.nMax || info.nPage != wanted.nPage ||
        info.nPos != wanted.nPos)
        SetScrollInfo(Window(), SB_CTL, &wanted, TRUE);
}

}  // namespace morpho
