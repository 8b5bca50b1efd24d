#pragma once

#include <string>

#include "program/request.h"

namespace morpho {

// `morpho list`: the text for standard output. What could not be read is told in `warnings`, one
// sentence a line, also before a refusal. Throws CommandError.
std::string List(const ListRequest& request, std::string& warnings);

}  // namespace morpho
