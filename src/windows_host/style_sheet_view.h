#pragma once

#include <memory>

#include "platform/front_page.h"
#include "windows_com/dispatch_caller.h"

namespace morpho {

// A style sheet of a page's document. Throws RunTimeError (kAutomation) for Nothing.
std::unique_ptr<StyleSheet> ViewOfStyleSheet(DispatchCaller sheet);

}  // namespace morpho
