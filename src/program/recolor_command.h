#pragma once

#include <string>

#include "program/request.h"

namespace morpho {

// `morpho recolor`: the text for standard output. Files that were left out and pictures that could
// not be recoloured are told in `warnings`, one sentence a line, also before a refusal. Throws
// CommandError, and has written nothing then.
std::string Recolor(const RecolorRequest& request, std::string& warnings);

}  // namespace morpho
