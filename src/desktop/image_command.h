#pragma once

#include "desktop/editor_desktop.h"
#include "desktop/request.h"

namespace morpho {

// Throws CommandError where there is nothing that `morpho image` could open.
void RequireImage(const ImageRequest& request);
// `morpho image`: opens the window and returns when it is closed. Throws CommandError.
void ShowImageWindow(const ImageRequest& request, EditorDesktop& here);

}  // namespace morpho
