#pragma once

#include <string_view>

namespace morpho {

// The editor's product name: the title of its message boxes, and the application its settings are
// kept under.
inline constexpr std::string_view kImageProduct = "Image Morpho";

}  // namespace morpho
