#pragma once

#include <string>

#include "desktop/commands/request.h"

namespace morpho {

// `morpho apply`: the warnings for standard error, one sentence a line. Throws RunTimeError.
std::string Apply(const ApplyRequest& request);

}  // namespace morpho
