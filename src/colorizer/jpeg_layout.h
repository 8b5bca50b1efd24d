#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// A JPEG file's segments (ITU-T T.81, annex B), found without decoding.
struct JpegLayout {
    std::size_t end = 0;                ///< length up to and with the end marker
    std::vector<std::uint8_t> markers;  ///< APPn and COM segments, one after the other
    std::vector<JpegScan> scans;
    std::vector<std::span<const std::uint8_t>> scanBytes;  ///< of each: header and data in the file
    bool isProgressive = false;
    int componentCount = 0;
};

/// For each component and coefficient the lowest bit that the scans have sent; kNotSent for none.
using BitsSent = std::array<std::array<int, 64>, 3>;
inline constexpr int kNotSent = -1;
BitsSent SentBits(std::span<const JpegScan> scans);

/// Walks the segments. Throws Error for a kind of JPEG that is refused, for a broken or cut chain
/// of segments, and where a limit is passed. Every claim of size is held against the file's length,
/// so what passes is safe to allocate.
JpegLayout ScanLayout(std::span<const std::uint8_t> file);

}  // namespace colorizer
