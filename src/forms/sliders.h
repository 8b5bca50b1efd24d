#pragma once

#include "forms/control.h"

namespace morpho {

// A slider. Scroll is raised while the user drags the thumb, Change once the value has settled.
class Slider : public Control {
  public:
    struct Range {
        int minimum = 0;
        int maximum = 100;
        int value = 0;          // at the start
        int smallChange = 1;    // arrow keys
        int largeChange = 10;   // page keys
        int tickFrequency = 0;  // 0: no ticks
    };
    Slider(Container& parent, const ControlSpec& spec, const Range& range, Handler scroll,
           Handler change)
        : Control(parent, spec),
          range_(range),
          value_(range.value),
          settled_(range.value),
          scroll_(std::move(scroll)),
          change_(std::move(change)) {}

    const Range& Limits() const { return range_; }
    int Value() const { return value_; }
    // A value outside the range becomes the nearest one inside.
    void SetValue(int value);
    void SetValueQuietly(int value);
    // The user drags the thumb, now at `value`.
    bool UserScroll(int value);
    // The user released the thumb, or set `value` by key or click: raises Scroll, if the value
    // changed, then Change.
    bool UserSettle(int value);
    void Accept(ControlVisitor& visitor) override;

  private:
    int Clamped(int value) const;
    void Settle();

    Range range_;
    int value_;
    int settled_;
    Handler scroll_;
    Handler change_;
};

// A scroll bar or spin control, vertical.
class ScrollBar : public Control {
  public:
    ScrollBar(Container& parent, const ControlSpec& spec, int minimum, int maximum, int value,
              Handler change)
        : Control(parent, spec),
          minimum_(minimum),
          maximum_(maximum),
          value_(value),
          change_(std::move(change)) {}

    int Minimum() const { return minimum_; }
    int Maximum() const { return maximum_; }
    int Value() const { return value_; }
    void SetValue(int value);
    bool UserSet(int value);
    void Accept(ControlVisitor& visitor) override;

  private:
    int minimum_;
    int maximum_;
    int value_;
    Handler change_;
};

}  // namespace morpho
