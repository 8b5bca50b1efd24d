#pragma once

#include <QTimer>

#include "forms/settling.h"

namespace morpho {

class TimedSettling : public Settling {
  public:
    TimedSettling() {
        timer_.setSingleShot(true);
        timer_.setInterval(kPauseMilliseconds);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Flush(); });
    }

  protected:
    void StartPause() override { timer_.start(); }
    void EndPause() override { timer_.stop(); }

  private:
    QTimer timer_;
};

}  // namespace morpho
