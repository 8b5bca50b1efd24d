#pragma once

#include <functional>

namespace morpho {

// Tries `attempt`, which returns whether it has succeeded, again for a moment while it fails
// because another program has a file open: scanners and browsers hold files for some milliseconds.
// Returns the last result; GetLastError is then of the last attempt.
bool TryWithPatience(const std::function<bool()>& attempt);

}  // namespace morpho
