#pragma once

#include <QColor>

namespace morpho {

inline constexpr QColor kBorderColor{0xc4, 0xc8, 0xce};
inline constexpr QColor kLinkColor{0x1a, 0x5f, 0xb4};

// The style, colours and font that the forms are laid out for.
void ApplyLook();

}  // namespace morpho
