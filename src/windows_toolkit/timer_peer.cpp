#include "windows_toolkit/timer_peer.h"

namespace morpho {

TimerPeer::~TimerPeer() {
    timer_.Attach(nullptr);
    KillTimer(window_, Id());
}

void CALLBACK TimerPeer::Tick(HWND, UINT, UINT_PTR id, DWORD) {
    reinterpret_cast<TimerPeer*>(id)->timer_.Tick();
}

void TimerPeer::Write(Aspects changed) {
    if (!(changed & aspect::kEnabled)) return;
    if (timer_.Enabled()) {
        SetTimer(window_, Id(), static_cast<UINT>(timer_.Interval()), &TimerPeer::Tick);
    } else {
        KillTimer(window_, Id());
    }
}

}  // namespace morpho
