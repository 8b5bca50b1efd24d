#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "colorizer/jpeg_picture.h"

namespace colorizer {

using JpegBytes = std::vector<std::uint8_t>;

/// Encodes the scans of a progressive picture side by side: `encode` gives a file whose only scan
/// is the one of this number; it is called by several threads. The result is the file with all
/// scans that the library would write by itself. Throws what `encode` throws.
JpegBytes EncodeScans(const JpegPicture& picture, std::size_t scanCount,
                      const std::function<JpegBytes(std::size_t scan)>& encode);

}  // namespace colorizer
