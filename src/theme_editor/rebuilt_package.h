#pragma once

#include <string>

namespace morpho {

struct Platform;

// Writes the package `destination` with the members that the package `source` lists, in their
// present form in `folder`. Source and destination may be the same file. A member that is a
// description of the source's theme ("a.inf" or "a.utf8" in "a.elm") becomes that of the
// destination's. Throws RunTimeError, and leaves the destination as it was, when the source's list
// cannot be trusted or a file is missing.
void RebuildThemePackage(const Platform& platform, const std::string& source,
                         const std::string& destination, const std::string& folder);

}  // namespace morpho
