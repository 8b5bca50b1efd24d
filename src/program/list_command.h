#pragma once

#include <string>

#include "program/request.h"

namespace morpho {

// `morpho list`: the text for standard output. `warnings` gets what could not be read, a sentence
// a line, also when it throws. Throws CommandError.
std::string List(const ListRequest& request, std::string& warnings);

}  // namespace morpho
