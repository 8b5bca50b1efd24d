#pragma once

#include <memory>

#include "platform/command_bars.h"
#include "windows_com/dispatch_caller.h"

namespace morpho {

// The host's menus and toolbars.
std::unique_ptr<CommandBars> ViewOfCommandBars(DispatchCaller bars);

}  // namespace morpho
