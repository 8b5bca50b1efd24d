#pragma once

#include <string_view>

namespace morpho {

// Whether the name, put behind a folder, means a file or folder directly in it on every system:
// no path, no control character, no device such as "nul" or "com1.x", no blank at either end and
// no full stop at the last.
bool IsPlainFileName(std::string_view name);

}  // namespace morpho
