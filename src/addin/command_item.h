#pragma once

#include <functional>
#include <memory>

#include "platform/command_bars.h"

namespace morpho {

// A command that an add-in keeps on one of the host's bars.
class CommandItem {
  public:
    // Keeps this control in place of the one before, and calls `clicked` at its clicks. Null: keeps
    // none. Throws RunTimeError when the control is no button.
    void Set(std::unique_ptr<CommandBarControl> control, std::function<void()> clicked);
    bool Exists() const { return control_ != nullptr; }
    // Deletes the control from its bar. Never throws; the host may have deleted it before.
    void Delete();

  private:
    std::unique_ptr<CommandBarControl> control_;
    std::unique_ptr<ClickEvents> events_;  // released before the control
};

}  // namespace morpho
