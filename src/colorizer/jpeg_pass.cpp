#include "colorizer/jpeg_pass.h"

#include "colorizer/jpeg_reader.h"
#include "colorizer/recolor_jpeg.h"
#include "colorizer/row_relay.h"

namespace colorizer {

std::vector<std::uint8_t> RecolorJpeg(JpegPicture& picture, const ColourMap& map,
                                      std::optional<int> quality, std::size_t sizeHint) {
    JpegRecoloring recoloring(picture, map, quality);
    return WriteJpeg(picture, recoloring, sizeHint);
}

std::vector<std::uint8_t> RecolorJpeg(std::span<const std::uint8_t> file, const ColourMap& map,
                                      std::optional<int> quality, JpegPicture& picture) {
    JpegReader reader(file, picture);
    if (!reader.HasOneScan() || !IsWorthThreads(picture.components[0])) {
        reader.ReadCoefficients(nullptr);
        return RecolorJpeg(picture, map, quality, file.size());
    }
    JpegRecoloring recoloring(picture, map, quality);
    std::vector<std::uint8_t> encoded;
    RowRelay relay;
    TellRows reading(relay);
    AwaitRows writing(relay, &recoloring);
    RunSideBySide(
        relay, [&] { reader.ReadCoefficients(&reading); },
        [&] { encoded = WriteJpeg(picture, writing, file.size()); });
    return encoded;
}

}  // namespace colorizer
