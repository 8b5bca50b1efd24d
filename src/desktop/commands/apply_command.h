#pragma once

#include <string>

#include "desktop/commands/request.h"

namespace morpho {

// `morpho apply`: the warnings for standard error, one sentence a line. Throws RunTimeError;
// CommandError when the web would lose a theme of its own, or when no page could be changed.
std::string Apply(const ApplyRequest& request);

}  // namespace morpho
