#include "windows_toolkit/slider_peer.h"

namespace morpho {

namespace {

DWORD TickStyle(const Slider& slider) {
    return slider.Limits().tickFrequency > 0 ? TBS_AUTOTICKS : TBS_NOTICKS;
}

}  // namespace

SliderPeer::SliderPeer(Slider& slider, HWND parent, const PeerContext& context)
    : ControlPeer(slider, parent, context, TRACKBAR_CLASSW,
                  TBS_HORZ | TBS_FIXEDLENGTH | TickStyle(slider)),
      slider_(slider) {
    const Slider::Range& limits = slider.Limits();
    const auto send = [this](UINT message, int value) {
        SendMessageW(Window(), message, 0, value);
    };
    send(TBM_SETRANGEMIN, limits.minimum);
    send(TBM_SETRANGEMAX, limits.maximum);
    send(TBM_SETLINESIZE, limits.smallChange);
    send(TBM_SETPAGESIZE, limits.largeChange);
    if (limits.tickFrequency > 0)
        SendMessageW(Window(), TBM_SETTICFREQ, static_cast<WPARAM>(limits.tickFrequency), 0);
}

SliderPeer::~SliderPeer() {
    Context().settling.Drop(this);
}

int SliderPeer::Position() const {
    return static_cast<int>(SendMessageW(Window(), TBM_GETPOS, 0, 0));
}

// A wheel sends TB_THUMBPOSITION without a drag. TB_ENDTRACK follows everything else.
void SliderPeer::OnScroll(WORD code) {
    const bool wasDragged = dragged_;
    dragged_ = code == TB_THUMBTRACK;
    if (code == TB_THUMBPOSITION && wasDragged) {
        Did([this] { LetGo(); });
    } else if (code != TB_ENDTRACK) {
        Report([this] { Moved(); });
    }
}

void SliderPeer::Moved() {
    const bool moved = slider_.UserScroll(Position());
    Show(aspect::kValue);
    if (moved && !dragged_) HoldSettling();
}

// While a handler runs the slider settles later, at its last value.
void SliderPeer::LetGo() {
    if (!slider_.UserSettle(Position())) HoldSettling();
}

void SliderPeer::HoldSettling() {
    Context().settling.Hold(this, [this] { return Settle(); });
}

bool SliderPeer::Settle() {
    const bool settled = slider_.UserSettle(slider_.Value());
    Show(aspect::kValue);
    return settled;
}

void SliderPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kPlace) {
        // Leaves room for the ticks.
        const int thumb = Pixels(slider_.Place().height) * 3 / 5;
        SendMessageW(Window(), TBM_SETTHUMBLENGTH, static_cast<WPARAM>(thumb), 0);
    }
    if ((changed & aspect::kValue) && Position() != slider_.Value())
        SendMessageW(Window(), TBM_SETPOS, TRUE, slider_.Value());
}

}  // namespace morpho
