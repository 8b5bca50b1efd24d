#pragma once

#include <memory>

#include "platform/front_page.h"
#include "windows_com/dispatch_caller.h"

namespace morpho {

// The host's web; null for Nothing.
std::unique_ptr<Web> ViewOfWeb(DispatchCaller web);

}  // namespace morpho
