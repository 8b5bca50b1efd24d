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

// A value that a person changes by steps: with a pair of arrows, where up is more, or with a bar,
// where right or down is more. Change is raised at every step, also while the thumb is dragged.
class ScrollBar : public Control {
  public:
    enum class Shape { kArrows, kHorizontal, kVertical };
    struct Range {
        int minimum = 0;
        int maximum = 0;
        int smallChange = 1;   // the arrows and arrow keys
        int largeChange = 10;  // the bar's track and page keys; the thumb is as long in proportion
    };
    // A pair of arrows.
    ScrollBar(Container& parent, const ControlSpec& spec, int minimum, int maximum, int value,
              Handler change)
        : Control(parent, spec),
          shape_(Shape::kArrows),
          range_{minimum, maximum},
          value_(value),
          change_(std::move(change)) {}
    ScrollBar(Container& parent, const ControlSpec& spec, Shape shape, Handler change)
        : Control(parent, spec), shape_(shape), change_(std::move(change)) {}

    Shape BarShape() const { return shape_; }
    const Range& Limits() const { return range_; }
    // A maximum below the minimum counts as the minimum. A value that is outside now becomes the
    // nearest one inside, which raises Change.
    void SetLimits(const Range& range);
    int Value() const { return value_; }
    // A value outside the range becomes the nearest one inside.
    void SetValue(int value);
    bool UserSet(int value);
    void Accept(ControlVisitor& visitor) override;

  private:
    Shape shape_;
    Range range_;
    int value_ = 0;
    Handler change_;
};

}  // namespace morpho
