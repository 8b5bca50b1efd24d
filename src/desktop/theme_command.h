#pragma once

#include "desktop/editor_desktop.h"
#include "desktop/request.h"

namespace morpho {

// `morpho theme`: opens the window and returns when it is closed. Throws CommandError.
void ShowThemeWindow(const ThemeRequest& request, EditorDesktop& here);

}  // namespace morpho
