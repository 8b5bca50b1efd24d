// What becomes of a JPEG is a JPEG of the same size, which a decoder of others reads.

#include "colorizer/colour_map.h"
#include "colorizer/jpeg_pass.h"
#include "colorizer/recolorer.h"
#include "fuzz/fuzz.h"
#include "fuzz/independent_jpeg.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span file(data, size);
    if (!colorizer::IsJpeg(file)) return 0;
    const int quality = size > 20 ? data[20] % 101 : 0;
    colorizer::JpegPicture picture;
    try {
        const auto after =
            colorizer::RecolorJpeg(file, colorizer::ColourMap({1.2, 0.8, 50}),
                                   quality > 0 ? std::optional(quality) : std::nullopt, picture);
        Require(DecodeIndependently(after, picture.width, picture.height) != Decoded::kWrongly,
                "The JPEG cannot be decoded.");
    } catch (const colorizer::Error&) {
    }
    return 0;
}
