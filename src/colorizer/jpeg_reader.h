#pragma once

#include "colorizer/jpeg_errors.h"
#include "colorizer/jpeg_layout.h"
#include "colorizer/jpeg_planes.h"
#include "colorizer/jpeg_source.h"

namespace colorizer {

/// Takes a JPEG file apart.
class JpegReader {
  public:
    /// Fills the picture but for its coefficients, and gives it planes of zeros. Both arguments
    /// must outlive this. Throws Error for kinds that are refused and for damage, std::bad_alloc.
    JpegReader(std::span<const std::uint8_t> file, JpegPicture& picture);

    /// True when all else in the picture is final before the coefficients are read.
    bool HasOneScan() const { return hasOneScan_; }

    /// Fills the planes. `rows` is told what is about to be filled, see JpegPlanes; may be absent.
    /// Throws Error.
    void ReadCoefficients(RowPreparation* rows);

  private:
    void Decode(RowPreparation* rows);
    bool CanLastScanFollow() const;
    void DecodeLastScanBeside();
    /// The file without its last scan, from where the library has read to.
    JpegSource::Pieces AllButLastScan() const;
    /// The file with its last scan alone.
    JpegSource::Pieces LastScan() const;
    void FinishTables();
    /// A file may give a slot a new table between two scans; here every table gets a slot of its
    /// own.
    int FreeSlot(int index, int slot) const;
    /// Compares with the standard's example tables, which the library sets for a new file.
    bool HasOwnHuffmanTables();
    /// True when every coefficient was sent down to its last bit.
    bool IsComplete() const;

    std::span<const std::uint8_t> file_;
    JpegLayout layout_;
    JpegPicture& picture_;
    JpegErrors errors_;
    JpegSource source_;
    JpegDecompress info_;
    bool hasOneScan_;
};

}  // namespace colorizer
