#include "addin/command_item.h"

#include <utility>

#include "platform/run_time_error.h"

namespace morpho {

void CommandItem::Set(std::unique_ptr<CommandBarControl> control, std::function<void()> clicked) {
    events_.reset();
    control_.reset();
    if (!control) return;
    const auto button = control->AsButton();
    if (!button) throw RunTimeError(ErrorNumber::kTypeMismatch, "Type mismatch");
    events_ = button->OnClick(std::move(clicked));
    control_ = std::move(control);
}

void CommandItem::Delete() {
    events_.reset();
    try {
        if (control_) control_->Delete();
    } catch (const std::exception&) {
    }
    control_.reset();
}

}  // namespace morpho
