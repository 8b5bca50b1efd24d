// bench_make_inputs FOLDER: writes the pictures that the measurements use, the same ones every
// time.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <jpeglib.h>

namespace fs = std::filesystem;

namespace {

using Bytes = std::vector<std::uint8_t>;

struct Picture {
    unsigned width, height;
    Bytes rgb;
};

/// A number from 0 to 1 for a place of a lattice.
float Noise(int x, int y, int layer) {
    std::uint32_t bits = static_cast<std::uint32_t>(x) * 374761393u +
                         static_cast<std::uint32_t>(y) * 668265263u +
                         static_cast<std::uint32_t>(layer) * 2246822519u;
    bits = (bits ^ (bits >> 13)) * 1274126177u;
    return static_cast<float>((bits ^ (bits >> 16)) & 0xFFFF) / 65535;
}

float SmoothNoise(float x, float y, int layer) {
    const int left = static_cast<int>(x), top = static_cast<int>(y);
    const float right = x - static_cast<float>(left), down = y - static_cast<float>(top);
    const float upper = Noise(left, top, layer) * (1 - right) + Noise(left + 1, top, layer) * right;
    const float lower =
        Noise(left, top + 1, layer) * (1 - right) + Noise(left + 1, top + 1, layer) * right;
    return upper * (1 - down) + lower * down;
}

/// Something like a photograph: soft areas, fine grain, hard edges, full range of light, moderate
/// colours.
Picture MakePhoto(unsigned width, unsigned height) {
    Picture picture{width, height, {}};
    picture.rgb.reserve(std::size_t{3} * width * height);
    for (unsigned row = 0; row < height; ++row) {
        for (unsigned column = 0; column < width; ++column) {
            const float x = static_cast<float>(column), y = static_cast<float>(row);
            float light =
                250 * SmoothNoise(x / 900, y / 900, 0) + 60 * SmoothNoise(x / 90, y / 90, 1) - 30;
            light += 30 * SmoothNoise(x / 11, y / 11, 2) + 26 * SmoothNoise(x / 2, y / 2, 3) - 28;
            if (SmoothNoise(x / 250, y / 250, 4) > 0.62F) light = 0.6F * light + 20;
            for (int channel = 0; channel < 3; ++channel) {
                const float tint = 110 * SmoothNoise(x / 400, y / 400, 5 + channel) +
                                   22 * SmoothNoise(x / 30, y / 30, 8 + channel) - 66;
                const float value = std::clamp(light + tint, 0.0F, 255.0F);
                picture.rgb.push_back(static_cast<std::uint8_t>(value));
            }
        }
    }
    return picture;
}

void WriteJpeg(const fs::path& path, const Picture& picture, int quality, int sampling,
               bool isProgressive) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    jpeg_error_mgr errors;
    jpeg_compress_struct info;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    jpeg_stdio_dest(&info, file);
    info.image_width = picture.width;
    info.image_height = picture.height;
    info.input_components = 3;
    info.in_color_space = JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, quality, TRUE);
    info.comp_info[0].h_samp_factor = info.comp_info[0].v_samp_factor = sampling;
    if (isProgressive) jpeg_simple_progression(&info);
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        JSAMPROW row = const_cast<JSAMPROW>(picture.rgb.data()) +
                       std::size_t{3} * info.next_scanline * picture.width;
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    std::fclose(file);
}

/// A GIF of 128 colours in which every pixel is one whole byte of code: no dictionary ever grows.
void WriteGif(const fs::path& path, unsigned width, unsigned height, int seed) {
    const auto low = [](unsigned value) { return static_cast<std::uint8_t>(value & 255); };
    Bytes gif{
        'G',  'I', 'F', '8', '9', 'a', low(width), low(width >> 8), low(height), low(height >> 8),
        0xE6, 0,   0};
    for (int entry = 0; entry < 3 * 128; ++entry)
        gif.push_back(static_cast<std::uint8_t>(256 * Noise(entry, seed, 0)));
    gif.insert(gif.end(), {0x2C, 0, 0, 0, 0});
    gif.insert(gif.end(), {low(width), low(width >> 8), low(height), low(height >> 8), 0, 7});
    const std::uint8_t clear = 128, end = 129;
    Bytes codes;
    for (unsigned pixel = 0; pixel < width * height; ++pixel) {
        if (pixel % 120 == 0) codes.push_back(clear);
        codes.push_back(static_cast<std::uint8_t>(pixel / width * 127 / height));
    }
    codes.push_back(end);
    for (std::size_t at = 0; at < codes.size(); at += 255) {
        const std::size_t length = std::min<std::size_t>(255, codes.size() - at);
        gif.push_back(static_cast<std::uint8_t>(length));
        gif.insert(gif.end(), codes.data() + at, codes.data() + at + length);
    }
    gif.push_back(0);
    gif.push_back(';');
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(gif.data()), std::ssize(gif));
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) return std::fputs("usage: bench_make_inputs FOLDER\n", stderr), 2;
    const fs::path folder = arguments[1];
    for (const char* part : {"jpeg", "theme", "gifs"})
        fs::create_directories(folder / part);
    const Picture photo = MakePhoto(4000, 3000);
    WriteJpeg(folder / "jpeg" / "420.jpg", photo, 85, 2, false);
    WriteJpeg(folder / "jpeg" / "444.jpg", photo, 85, 1, false);
    WriteJpeg(folder / "jpeg" / "progressive.jpg", photo, 85, 2, true);
    WriteJpeg(folder / "jpeg" / "small-q80.jpg", MakePhoto(1200, 900), 80, 2, false);
    for (int number = 0; number < 38; ++number) {
        const std::string name = "picture" + std::to_string(number);
        const unsigned size = 24 + 8 * static_cast<unsigned>(number % 13);
        if (number % 4 == 3) {
            WriteJpeg(folder / "theme" / (name + ".jpg"), MakePhoto(5 * size, 3 * size), 80, 2,
                      false);
        } else {
            WriteGif(folder / "theme" / (name + ".gif"), 3 * size, size, number);
        }
    }
    for (int number = 0; number < 1000; ++number) {
        WriteGif(folder / "gifs" / (std::to_string(number) + ".gif"), 60, 20, number);
    }
}
