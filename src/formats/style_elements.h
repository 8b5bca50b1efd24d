#pragma once

#include <string_view>
#include <vector>

namespace morpho {

// The text of each style sheet that this HTML, inserted into a page's body, brings in with a
// `style` element, in order. The texts are parts of `html`.
std::vector<std::string_view> StyleElements(std::string_view html);

}  // namespace morpho
