#pragma once

#include <string>
#include <string_view>

namespace morpho {

// The address (file:) of the page at this Windows path. "%" and "#" are escaped: in an address they
// have a meaning of their own.
std::string PageAddress(std::string_view path);

}  // namespace morpho
