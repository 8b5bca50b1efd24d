#include "forms/sliders.h"

#include <algorithm>

#include "forms/control_visitor.h"

namespace morpho {

void Slider::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void ScrollBar::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

int Slider::Clamped(int value) const {
    return std::clamp(value, range_.minimum, range_.maximum);
}

void Slider::SetValue(int value) {
    if (Clamped(value) != value_) {
        value_ = Clamped(value);
        Changed(aspect::kValue);
    }
    Settle();
}

void Slider::SetValueQuietly(int value) {
    settled_ = Clamped(value);
    if (settled_ == value_) return;
    value_ = settled_;
    Changed(aspect::kValue);
}

bool Slider::UserScroll(int value) {
    if (!IsOpenToUser()) return false;
    if (Clamped(value) == value_) return true;
    value_ = Clamped(value);
    Changed(aspect::kValue);
    Raise("Scroll", scroll_);
    return true;
}

bool Slider::UserSettle(int value) {
    if (!UserScroll(value)) return false;
    Settle();
    return true;
}

void Slider::Settle() {
    if (settled_ == value_) return;
    settled_ = value_;
    Raise("Change", change_);
}

void ScrollBar::SetLimits(const Range& range) {
    range_ = range;
    range_.maximum = std::max(range.maximum, range.minimum);
    Changed(aspect::kValue);
    SetValue(value_);
}

void ScrollBar::SetValue(int value) {
    const int inside = std::clamp(value, range_.minimum, range_.maximum);
    if (inside == value_) return;
    value_ = inside;
    Changed(aspect::kValue);
    Raise("Change", change_);
}

bool ScrollBar::UserSet(int value) {
    if (!IsOpenToUser()) return false;
    SetValue(value);
    return true;
}

}  // namespace morpho
