#pragma once

#include <vector>

#include "forms/form.h"
#include "forms/shortcut.h"

namespace morpho {

// What the keys do that belong to no single control, for a toolkit whose window system leaves them
// to the program. The functions that return bool return false when the key stands for nothing.

// The controls that Tab reaches, in their order. A group of option buttons is one of them: by its
// chosen button, or by its first.
std::vector<Control*> TabStops(const Container& container);
// The one after, or before, the control that has the focus, in a circle. Null when there is none.
Control* NextTabStop(const Form& form, bool backwards);

// Alt with a letter or digit of ASCII: gives the focus to the control and presses it. Where several
// controls have the key, each press gives the focus to the next of them and presses nothing.
bool UserAccessKey(Form& form, char key);
// Presses the button that has this shortcut.
bool UserShortcut(Form& form, const Shortcut& shortcut);
// Enter: presses the button or link that has the focus, else the default button.
bool UserEnter(Form& form);
// An arrow key on an option button: chooses the next one of the group (by 1), or the one before
// (by -1), in a circle.
bool UserArrow(Form& form, int by);

}  // namespace morpho
