#pragma once

#include <optional>
#include <span>
#include <vector>

#include "colorizer/colour_map.h"
#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// One pass over a picture that is at hand. Returns the new file. Throws Error, std::bad_alloc.
std::vector<std::uint8_t> RecolorJpeg(JpegPicture& picture, const ColourMap& map,
                                      std::optional<int> quality, std::size_t sizeHint);

/// The same for a file. Leaves in `picture`, which is empty at first, what the new file holds. A
/// large file of one scan is read and written in parallel, each in a thread of its own.
std::vector<std::uint8_t> RecolorJpeg(std::span<const std::uint8_t> file, const ColourMap& map,
                                      std::optional<int> quality, JpegPicture& picture);

}  // namespace colorizer
