#include "theme_editor/busy_switch.h"

namespace morpho {

void BusySwitch::SetBusy(bool busy) {
    if (busy && !busy_) focused_ = form_.Focused();
    busy_ = busy;
    form_.SetPointer(busy ? MousePointer::kHourglass : MousePointer::kDefault);
    for (Frame* frame : frames_)
        frame->SetEnabled(!busy);
    if (!busy && focused_ != nullptr) {
        if (focused_->IsOperable()) focused_->SetFocus();
        focused_ = nullptr;
    }
}

}  // namespace morpho
