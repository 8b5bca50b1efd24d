#pragma once

#include <cstdint>
#include <span>

// A JPEG decoder that shares no code with libjpeg.

enum class Decoded { kWell, kNotSupported, kWrongly };

// Decodes a JPEG to pixels, and compares its size in pixels with these. Pictures of a kind that the
// decoder never reads are not supported.
Decoded DecodeIndependently(std::span<const std::uint8_t> file, unsigned width, unsigned height);
