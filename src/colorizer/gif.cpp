#include "colorizer/gif.h"

#include <cmath>
#include <cstring>

namespace colorizer {

namespace {

constexpr std::size_t kHeaderBytes = 6;
constexpr std::size_t kScreenDescriptorBytes = 7;
constexpr std::size_t kImageDescriptorBytes = 9;
constexpr std::uint8_t kExtension = 0x21;
constexpr std::uint8_t kImage = 0x2C;
constexpr std::uint8_t kTrailer = 0x3B;

std::uint8_t Rounded(double value) {
    // Half up. The tiny extra keeps a half that lost its last digit from going down.
    return static_cast<std::uint8_t>(std::floor(value + 0.5 + 1e-9));
}

class GifWalk {
  public:
    GifWalk(std::span<std::uint8_t> file, const ColourMap& map) : rest_(file), map_(map) {}

    void Run() {
        Take(kHeaderBytes);
        PatchTable(Take(kScreenDescriptorBytes)[4]);
        bool hasImage = false;
        while (!(rest_.empty() && hasImage)) {
            switch (Take(1)[0]) {
                case kExtension:
                    Take(1);
                    SkipSubBlocks();
                    break;
                case kImage:
                    PatchTable(Take(kImageDescriptorBytes)[8]);
                    Take(1);
                    SkipSubBlocks();
                    hasImage = true;
                    break;
                case kTrailer:
                    return;
                default:
                    throw Error("The GIF file is damaged: it has a block of an unknown kind.");
            }
        }
    }

  private:
    std::span<std::uint8_t> Take(std::size_t count) {
        if (rest_.size() < count) throw Error("The GIF file is truncated.");
        const auto taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }

    void SkipSubBlocks() {
        while (const std::size_t length = Take(1)[0])
            Take(length);
    }

    /// `flags`: bit 7 tells that a table follows, bits 0 to 2 its size.
    void PatchTable(std::uint8_t flags) {
        if (!(flags & 0x80)) return;
        const auto table = Take(3 * (std::size_t{2} << (flags & 7)));
        for (std::size_t at = 0; at < table.size(); at += 3) {
            const auto entry = table.subspan(at, 3);
            const Rgb colour =
                Recolored(map_, Rgb{double(entry[0]), double(entry[1]), double(entry[2])});
            entry[0] = Rounded(colour.red);
            entry[1] = Rounded(colour.green);
            entry[2] = Rounded(colour.blue);
        }
    }

    std::span<std::uint8_t> rest_;
    const ColourMap& map_;
};

}  // namespace

bool IsGif(std::span<const std::uint8_t> file) {
    return file.size() >= kHeaderBytes && (std::memcmp(file.data(), "GIF87a", kHeaderBytes) == 0 ||
                                           std::memcmp(file.data(), "GIF89a", kHeaderBytes) == 0);
}

void RecolorGif(std::span<std::uint8_t> file, const ColourMap& map) {
    GifWalk(file, map).Run();
}

}  // namespace colorizer
