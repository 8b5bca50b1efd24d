#pragma once

#include <QTimer>

#include "forms/controls.h"

namespace morpho {

// Ticks while the timer is enabled.
class TimerPeer : public Peer {
  public:
    explicit TimerPeer(Timer& timer);
    ~TimerPeer() override;
    TimerPeer(const TimerPeer&) = delete;
    TimerPeer& operator=(const TimerPeer&) = delete;

  protected:
    void Write(Aspects changed) override;

  private:
    Timer& timer_;
    QTimer clock_;
};

}  // namespace morpho
