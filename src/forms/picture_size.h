#pragma once

#include <cstdint>
#include <string_view>

#include "forms/geometry.h"

namespace morpho {

// The most pixels that a control shows.
inline constexpr std::int64_t kMaxShownPixels = std::int64_t{1} << 26;
// What they take when decoded, four bytes each.
inline constexpr int kMaxShownMegabytes = (kMaxShownPixels * 4) >> 20;

// The size in pixels that an encoded picture (JPEG, GIF, PNG, BMP) states in its header; the pixels
// are not decoded. {0, 0} when the format is unknown, the header is damaged or the picture has more
// than kMaxShownPixels.
Size PictureSize(std::string_view encoded);

}  // namespace morpho
