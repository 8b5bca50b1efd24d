#pragma once

#include "forms/keyboard.h"
#include "forms/settling.h"
#include "windows_system/win32.h"

namespace morpho {

// Handles the keys that belong to no single control, before the control that has the focus gets the
// message: Tab, Escape, Enter, access keys, shortcuts, and arrows among option buttons. False: the
// message goes its way. Earlier input that still waits in `settling` comes first.
bool HandleKey(Form& form, Settling& settling, MSG& message);

}  // namespace morpho
