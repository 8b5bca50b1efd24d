#include "qt/timer_peer.h"

namespace morpho {

TimerPeer::TimerPeer(Timer& timer) : timer_(timer) {
    clock_.setInterval(timer.Interval());
    QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] { timer_.Tick(); });
}

TimerPeer::~TimerPeer() {
    timer_.Attach(nullptr);
}

void TimerPeer::Write(Aspects changed) {
    if (!(changed & aspect::kEnabled)) return;
    if (timer_.Enabled()) {
        clock_.start();
    } else {
        clock_.stop();
    }
}

}  // namespace morpho
