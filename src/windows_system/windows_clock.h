#pragma once

#include "platform/clock.h"

namespace morpho {

class WindowsClock : public Clock {
  public:
    LocalTime Now() const override;
};

}  // namespace morpho
