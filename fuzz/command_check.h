#pragma once

#include "desktop/request.h"
#include "support/temporary_folder.h"

// Ends the program when a command that ended with this status has changed anything that it must
// not, or has left half of something.
void CheckCommand(const morpho::Request& request, int status, const morpho::Tree& before,
                  const morpho::Tree& after);
