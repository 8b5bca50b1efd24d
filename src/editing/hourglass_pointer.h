#pragma once

#include "forms/form.h"

namespace morpho {

// Shows the hourglass while it lives, and the earlier pointer afterwards.
class HourglassPointer {
  public:
    explicit HourglassPointer(Form& form) : form_(form), earlier_(form.Pointer()) {
        form_.SetPointer(MousePointer::kHourglass);
    }
    ~HourglassPointer() { form_.SetPointer(earlier_); }
    HourglassPointer(const HourglassPointer&) = delete;
    HourglassPointer& operator=(const HourglassPointer&) = delete;

  private:
    Form& form_;
    MousePointer earlier_;
};

}  // namespace morpho
