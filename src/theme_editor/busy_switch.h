#pragma once

#include <vector>

#include "forms/controls.h"
#include "forms/form.h"

namespace morpho {

// Shows that a long operation runs: the hourglass, and the window's frames disabled.
class BusySwitch {
  public:
    BusySwitch(Form& form, std::vector<Frame*> frames) : form_(form), frames_(std::move(frames)) {}

    bool Busy() const { return busy_; }
    // A control that loses the focus by being disabled gets it back.
    void SetBusy(bool busy);

    // Busy while it lives.
    class Guard {
      public:
        explicit Guard(BusySwitch& busySwitch) : switch_(busySwitch) { switch_.SetBusy(true); }
        ~Guard() { switch_.SetBusy(false); }
        Guard(const Guard&) = delete;
        Guard& operator=(const Guard&) = delete;

      private:
        BusySwitch& switch_;
    };

  private:
    Form& form_;
    std::vector<Frame*> frames_;
    bool busy_ = false;
    Control* focused_ = nullptr;
};

}  // namespace morpho
