#include "forms/option_button.h"

#include "forms/control_visitor.h"

namespace morpho {

void OptionButton::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

void OptionButton::SetValue(bool value) {
    if (value == value_) return;
    SetValueQuietly(value);
    if (value) Raise("Click", click_);
}

void OptionButton::SetValueQuietly(bool value) {
    if (value == value_) return;
    if (value) {
        for (Control* const sibling : Parent().Controls())
            if (auto* const option = dynamic_cast<OptionButton*>(sibling))
                option->SetValueQuietly(false);
    }
    value_ = value;
    Changed(aspect::kValue);
}

bool OptionButton::UserClick() {
    if (!IsOpenToUser()) return false;
    SetValue(true);
    return true;
}

}  // namespace morpho
