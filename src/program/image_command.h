#pragma once

#include "program/request.h"

namespace morpho {

// `morpho image`: opens the window and returns when it is closed. Throws CommandError.
void ShowImageWindow(const ImageRequest& request);

}  // namespace morpho
