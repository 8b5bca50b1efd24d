#pragma once

#include "desktop/request.h"
#include "program/qt_desktop.h"

namespace morpho {

// `morpho [WEB]`: opens the window of the host, with both add-ins, and returns when it is closed.
// Without WEB it opens the last one, or asks for a folder. Throws CommandError.
void ShowWebWindow(const WebRequest& request, QtDesktop& here);

}  // namespace morpho
