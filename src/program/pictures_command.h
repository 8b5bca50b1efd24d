#pragma once

#include <iosfwd>
#include <string>

#include "program/request.h"

namespace morpho {

// `morpho recolor` for pictures. Writes what the command line asked to print to `output`.
// `warnings` gets a sentence a line for each picture that could not be recoloured; the others are
// recoloured, and then it throws CommandError.
void RecolorPictures(const PicturesRequest& request, std::ostream& output, std::string& warnings);

}  // namespace morpho
