#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "colorizer/coefficient_plane.h"

namespace colorizer {

/// Quantisation steps, row by row.
using QuantTable = std::array<std::uint16_t, 64>;

struct JpegComponent {
    int id = 0;
    int horizontal = 1, vertical = 1;  ///< sampling factors, 1 to 4
    std::size_t blocksWide = 0,
                blocksHigh = 0;  ///< the blocks that carry picture; the plane may have more
    int tableSlot = 0;           ///< 0 to 3; components with one slot have one table
    QuantTable table{};
    CoefficientPlane plane;
};

/// One scan of a scan script (ITU-T T.81, B.2.3).
struct JpegScan {
    std::array<int, 4> components{};  ///< places in the frame header
    int componentCount = 0;
    int spectralStart = 0, spectralEnd = 63;
    int bitHigh = 0, bitLow = 0;
};

enum class JpegColour { kGrey, kYCbCr, kRgb };

/// A JPEG file taken apart: coefficients, and all that is kept of the file besides.
struct JpegPicture {
    unsigned width = 0, height = 0;  ///< pixels
    JpegColour colour = JpegColour::kGrey;
    std::vector<JpegComponent> components;  ///< one, or three
    bool isProgressive = false;
    bool hasOwnHuffmanTables =
        false;                     ///< other than the standard's examples: made for this picture
    unsigned restartInterval = 0;  ///< in MCUs, 0 for none
    std::vector<JpegScan>
        scans;  ///< empty when a progressive file leaves bits out: a script of its own is used
    std::vector<std::uint8_t> markers;   ///< APPn and COM segments, as they stand in the file
    std::vector<std::uint8_t> trailing;  ///< what follows the end of the picture
};

/// True when the bytes begin as a JPEG file does.
bool IsJpeg(std::span<const std::uint8_t> file);

/// Whether the picture is so large that another thread saves more time than it costs.
inline bool IsWorthThreads(const JpegComponent& first) {
    constexpr std::size_t kBlocks = 4096;
    return first.blocksWide * first.blocksHigh >= kBlocks;
}

/// Does what is to be done before rows of blocks are used.
class RowPreparation {
  public:
    virtual ~RowPreparation() = default;
    /// The component's first `rows` rows of blocks are about to be written to a file, or the last
    /// of them to be filled from one. Rows come in order, but are asked for again when there are
    /// several scans, and may lie below the picture. False stops the work with an error. Throws
    /// nothing.
    virtual bool Prepare(const JpegComponent& component, std::size_t rows) = 0;
};

/// Puts a file together from the picture as `preparation` leaves it. `sizeHint` is about how many
/// bytes it will have. Throws Error, std::bad_alloc.
std::vector<std::uint8_t> WriteJpeg(JpegPicture& picture, RowPreparation& preparation,
                                    std::size_t sizeHint);

/// The standard's example tables for luma and chroma at a quality of 1 to 100, steps of at most
/// 255.
std::array<QuantTable, 2> StandardTables(int quality);

}  // namespace colorizer
