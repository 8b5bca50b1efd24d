#pragma once

#include <string>
#include <string_view>

namespace morpho {

// UTF-8 as the UTF-16 of the W calls and back. What is not valid becomes U+FFFD.
std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);

}  // namespace morpho
