#pragma once

namespace morpho {

// A local date and time: month 1 to 12, day 1 to 31, 24-hour clock.
struct LocalTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual LocalTime Now() const = 0;
};

}  // namespace morpho
