#pragma once

#include "forms/control.h"

namespace morpho {

// One of several choices. The option buttons of a container form a group: at most one is chosen.
class OptionButton : public Control {
  public:
    OptionButton(Container& parent, const ControlSpec& spec, Handler click = {})
        : Control(parent, spec), click_(std::move(click)) {}

    bool Value() const { return value_; }
    // True chooses the button in place of the one chosen before, and raises Click. False leaves the
    // group without a choice and raises nothing, because a person cannot do that.
    void SetValue(bool value);
    void SetValueQuietly(bool value);
    bool UserClick();
    void Accept(ControlVisitor& visitor) override;

  private:
    bool value_ = false;
    Handler click_;
};

}  // namespace morpho
