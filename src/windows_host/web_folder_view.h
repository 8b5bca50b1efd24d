#pragma once

#include <memory>

#include "platform/front_page.h"
#include "windows_com/dispatch_caller.h"

namespace morpho {

// A folder of the host's web; null for Nothing.
std::unique_ptr<WebFolder> ViewOfFolder(DispatchCaller folder);

}  // namespace morpho
