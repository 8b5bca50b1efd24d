#pragma once

#include <cstdint>
#include <span>

#include "colorizer/colour_map.h"

namespace colorizer {

/// True when the bytes begin as a GIF file does.
bool IsGif(std::span<const std::uint8_t> file);

/// Recolours every entry of every colour table where it stands; no other byte changes. The blocks
/// are walked (GIF89a), the image data is never decompressed. Throws Error where a
/// block runs past the end of the file; a file that merely lacks its trailer after the last image
/// is taken, as browsers take it.
void RecolorGif(std::span<std::uint8_t> file, const ColourMap& map);

}  // namespace colorizer
