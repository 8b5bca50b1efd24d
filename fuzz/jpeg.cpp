// What becomes of a JPEG is a JPEG of the same size that decodes.

#include <csetjmp>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

#include "colorizer/colour_map.h"
#include "colorizer/jpeg_pass.h"
#include "colorizer/recolorer.h"
#include "fuzz/fuzz.h"

namespace {

struct Failure : jpeg_error_mgr {
    std::jmp_buf place;
};

// Decodes to pixels, and so by other code of the library than the coefficients.
bool Decodes(const std::vector<std::uint8_t>& file, unsigned width, unsigned height) {
    jpeg_decompress_struct info{};
    Failure failure{};
    info.err = jpeg_std_error(&failure);
    failure.error_exit = [](j_common_ptr common) {
        std::longjmp(static_cast<Failure*>(common->err)->place, 1);
    };
    failure.emit_message = [](j_common_ptr, int) {};
    std::vector<std::uint8_t> row;
    if (setjmp(failure.place) != 0) {
        jpeg_destroy_decompress(&info);
        return false;
    }
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, file.data(), file.size());
    jpeg_read_header(&info, TRUE);
    jpeg_start_decompress(&info);
    row.resize(std::size_t{info.output_width} * static_cast<unsigned>(info.output_components));
    JSAMPROW rows[1] = {row.data()};
    while (info.output_scanline < info.output_height)
        jpeg_read_scanlines(&info, rows, 1);
    const bool isSame = info.output_width == width && info.output_height == height;
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    return isSame;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span file(data, size);
    if (!colorizer::IsJpeg(file)) return 0;
    const int quality = size > 20 ? data[20] % 101 : 0;
    colorizer::JpegPicture picture;
    try {
        const auto after =
            colorizer::RecolorJpeg(file, colorizer::ColourMap({1.2, 0.8, 50}),
                                   quality > 0 ? std::optional(quality) : std::nullopt, picture);
        Require(Decodes(after, picture.width, picture.height), "The JPEG cannot be decoded.");
    } catch (const colorizer::Error&) {
    }
    return 0;
}
