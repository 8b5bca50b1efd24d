#pragma once

#include <iosfwd>
#include <string>

#include "desktop/desktop_system.h"
#include "desktop/request.h"

namespace morpho {

// `morpho recolor` for pictures. Writes what the command line asked to print to `output`.
// `warnings` gets a sentence a line for each picture that could not be recoloured; the others are
// recoloured, and then it throws CommandError.
void RecolorPictures(const PicturesRequest& request, DesktopSystem& system, std::ostream& output,
                     std::string& warnings);

}  // namespace morpho
