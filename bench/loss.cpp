// bench_loss SOURCE RESULT PASSES BRIGHTNESS SATURATION HUE: how far a recoloured JPEG is from the
// exact result, which is the formula in double precision on the decoded source, without any
// rounding between passes. PSNR in dB over RGB.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <vector>

#include <jpeglib.h>

namespace {

std::vector<unsigned char> Decode(const char* path) {
    std::FILE* const file = std::fopen(path, "rb");
    if (!file) return {};
    jpeg_error_mgr errors;
    jpeg_decompress_struct info;
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    info.out_color_space = JCS_RGB;
    jpeg_start_decompress(&info);
    std::vector<unsigned char> pixels(std::size_t{3} * info.output_width * info.output_height);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = pixels.data() + std::size_t{3} * info.output_width * info.output_scanline;
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_destroy_decompress(&info);
    std::fclose(file);
    return pixels;
}

/// The exact colour after some passes, clamped as the formula says in each, to RGB at the end.
void Recolor(double* rgb, int passes, const double* adjustment) {
    const double strength = adjustment[0] * adjustment[1],
                 angle = adjustment[2] * std::numbers::pi / 180;
    const double cosine = strength * std::cos(angle), sine = strength * std::sin(angle);
    double y = 0.299 * rgb[0] + 0.587 * rgb[1] + 0.114 * rgb[2];
    double cb = (rgb[2] - y) / 1.772, cr = (rgb[0] - y) / 1.402;
    for (int pass = 0; pass < passes; ++pass) {
        const double oldCb = cb;
        cb = std::clamp(cosine * oldCb - sine * cr, -128.0, 127.0);
        cr = std::clamp(sine * oldCb + cosine * cr, -128.0, 127.0);
        y = std::clamp(adjustment[0] * y, 0.0, 255.0);
    }
    rgb[0] = std::clamp(y + 1.402 * cr, 0.0, 255.0);
    rgb[1] = std::clamp(y - (0.202008 * cb + 0.419198 * cr) / 0.587, 0.0, 255.0);
    rgb[2] = std::clamp(y + 1.772 * cb, 0.0, 255.0);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 7) {
        std::fputs("usage: bench_loss SOURCE RESULT PASSES BRIGHTNESS SATURATION HUE\n", stderr);
        return 2;
    }
    const auto source = Decode(arguments[1]), result = Decode(arguments[2]);
    if (source.empty() || source.size() != result.size())
        return std::fputs("unlike pictures\n", stderr), 1;
    const int passes = std::atoi(arguments[3]);
    const double adjustment[] = {std::atof(arguments[4]), std::atof(arguments[5]),
                                 std::atof(arguments[6])};
    double squares = 0;
    for (std::size_t at = 0; at < source.size(); at += 3) {
        double exact[3] = {double(source[at]), double(source[at + 1]), double(source[at + 2])};
        Recolor(exact, passes, adjustment);
        for (int c = 0; c < 3; ++c)
            squares += (exact[c] - result[at + c]) * (exact[c] - result[at + c]);
    }
    std::printf("%.1f\n",
                10 * std::log10(255.0 * 255.0 * static_cast<double>(source.size()) / squares));
    return 0;
}
