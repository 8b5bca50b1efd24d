#pragma once

#include <string>

#include "program/request.h"

namespace morpho {

// `morpho recolor`: the text for standard output. `warnings` gets the files that were left out and
// the pictures that could not be recoloured, a sentence a line, also when it throws. Throws
// CommandError; then nothing was written.
std::string Recolor(const RecolorRequest& request, std::string& warnings);

}  // namespace morpho
