#pragma once

#include <string>

#include "program/request.h"

namespace morpho {

// `morpho apply`. What there is to be told is in `warnings`, a sentence a line. Throws
// RunTimeError; CommandError when the web would lose a theme of its own, or when no page takes the
// theme then.
void Apply(const ApplyRequest& request, std::string& warnings);

}  // namespace morpho
