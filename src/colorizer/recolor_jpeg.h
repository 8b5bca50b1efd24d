#pragma once

#include <optional>

#include "colorizer/colour_map.h"
#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// Recolours the picture's coefficients. With a quality (1 to 100) it gets the standard tables of
/// that quality, without one it keeps its own.
void RecolorJpeg(JpegPicture& picture, const ColourMap& map, std::optional<int> quality);

}  // namespace colorizer
