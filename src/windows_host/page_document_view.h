#pragma once

#include <memory>

#include "platform/front_page.h"
#include "windows_com/dispatch_caller.h"

namespace morpho {

// The document of a page, an object in the shape of MSHTML's; null for Nothing.
std::unique_ptr<PageDocument> ViewOfDocument(DispatchCaller document);

}  // namespace morpho
