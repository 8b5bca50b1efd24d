#pragma once

#include <string>

#include "desktop/commands/request.h"

namespace morpho {

// `morpho list`: the text for standard output. Throws CommandError.
std::string List(const ListRequest& request);

}  // namespace morpho
