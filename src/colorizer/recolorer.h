#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <vector>

/// Recolours GIF and JPEG pictures without decoding them to pixels where the format allows it.
/// Needs the C++ standard library and libjpeg-turbo, nothing else.
namespace colorizer {

/// A pass that could not be done. `what()` is one sentence for the user. Whatever stood at the
/// destination still does.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What one pass does to every colour. In JFIF colour (ITU-T T.871), b, s and the hue shift H do
/// this:
///     Y'  = b Y
///     Cb' = b s (cos H Cb - sin H Cr)
///     Cr' = b s (sin H Cb + cos H Cr)
/// Y' is clamped to 0...255, Cb' and Cr' to -128...127. Greys stay grey, and a hue shift alone
/// keeps the lightness.
struct Adjustment {
    double brightness = 1;  ///< b, 0 (black) to kMaxFactor
    double saturation = 1;  ///< s, 0 (grey) to kMaxFactor
    double hueDegrees = 0;  ///< H, any finite angle; +120 carries red towards green

    /// True when no colour changes: factors of 1 and whole turns.
    bool IsNeutral() const;
};

/// The largest factor. Beyond it nearly every colour would be at the end of its range.
inline constexpr double kMaxFactor = 4;
/// JPEG qualities as libjpeg counts them.
inline constexpr int kLeastQuality = 1, kMostQuality = 100;
/// Files longer than this are refused. A whole file is held in memory.
inline constexpr std::uintmax_t kMaxFileBytes = std::uintmax_t{1} << 29;
/// JPEG pictures with more pixels are refused, and so are files too short to hold the pixels they
/// claim. A pass needs at most 6 bytes a pixel (3 for grey 4:2:0, 2 for grey), plus the file read
/// and the file written.
inline constexpr std::uint64_t kMaxPixels = std::uint64_t{1} << 27;
/// JPEG files with more scans, or with more marker segments, are refused: such files exist to waste
/// time.
inline constexpr std::size_t kMaxScans = 128;
inline constexpr std::size_t kMaxSegments = 10'000;
/// So are JPEG files whose scans code more blocks in all: a block of a scan costs time even where
/// it takes no byte. The largest picture that is accepted needs 30 million blocks for the usual ten
/// scans of a progressive file.
inline constexpr std::uint64_t kMaxScanBlocks = std::uint64_t{1} << 25;

/// What a system does better than the standard library. Empty functions mean the library's way.
struct FileHooks {
    /// Renames a file, replacing the one of that name; false when that fails.
    std::function<bool(const std::filesystem::path& from, const std::filesystem::path& to)> replace;
    /// A number that becomes another one whenever the file is written or replaced: where the
    /// library's file times are coarse, a file that was exchanged for one of the same size would
    /// pass for unchanged.
    std::function<std::uint64_t(const std::filesystem::path& file)> version;
};

/// Recolours files. Cheap to create. Objects share nothing, so each thread may use one of its own.
/// For a large JPEG a pass uses a second thread while it lasts.
///
/// The picture written last is remembered, so that a chain of passes (original to work copy, then
/// work copy to itself, again and again) neither reads nor decodes the work copy. It is read again
/// if its size or time has changed since.
///
/// Which format a file has is told by its content. What is kept:
/// - GIF: everything but the colours in the colour tables. A quality means nothing to it.
/// - JPEG: size, sampling, baseline or progressive with the order of its scans, restart interval,
/// every APPn and COM
///   segment in order, bytes after the end; without a quality the quantisation tables too. Refused:
///   CMYK and YCCK, 12 bits a sample, arithmetic coding, lossless and hierarchical coding, and
///   files that are damaged anywhere.
///
/// A neutral adjustment copies the file's bytes, and does nothing when source and destination are
/// one file; only with a quality is a JPEG encoded anew. The same input gives the same bytes on
/// every platform.
class Recolorer {
  public:
    explicit Recolorer(FileHooks hooks = {});
    ~Recolorer();
    Recolorer(Recolorer&&) noexcept;
    Recolorer& operator=(Recolorer&&) noexcept;

    /// One pass. Source and destination may be the same file. `quality` (1 to 100) gives a JPEG
    /// destination the standard tables of that quality. Throws Error.
    ///
    /// The destination is replaced as a whole: a new file is written in its folder, checked and
    /// renamed over it, so its permissions are kept, a symbolic link keeps pointing to it, and
    /// other hard links keep the old content. Written means handed to the operating system without
    /// an error; nothing is forced to the disk itself.
    void Recolor(const std::filesystem::path& source, const std::filesystem::path& destination,
                 const Adjustment& adjustment, std::optional<int> quality = std::nullopt);

    /// Gives back the memory of the remembered picture.
    void Forget();

  private:
    struct Memory;
    FileHooks hooks_;
    std::unique_ptr<Memory> memory_;
};

/// The same pass on a file's bytes. Throws Error.
std::vector<std::uint8_t> Recolored(std::span<const std::uint8_t> file,
                                    const Adjustment& adjustment,
                                    std::optional<int> quality = std::nullopt);

}  // namespace colorizer
