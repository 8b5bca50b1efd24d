#pragma once

#include "forms/form.h"

namespace morpho {

// Shows the hourglass while it lives, and the default pointer afterwards.
class HourglassPointer {
  public:
    explicit HourglassPointer(Form& form) : form_(form) {
        form_.SetPointer(MousePointer::kHourglass);
    }
    ~HourglassPointer() { form_.SetPointer(MousePointer::kDefault); }
    HourglassPointer(const HourglassPointer&) = delete;
    HourglassPointer& operator=(const HourglassPointer&) = delete;

  private:
    Form& form_;
};

}  // namespace morpho
