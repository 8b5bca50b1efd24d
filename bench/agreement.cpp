// Holds the component's colours against another program's.
//   bench_agreement make FOLDER                         writes planes.yuv (256 x 256, yuv444p) and
//   cube.ppm bench_agreement planes FOLDER SATURATION HUE        compares what the program made of
//   planes.yuv, planes.out.yuv bench_agreement rgb FOLDER BRIGHTNESS SATURATION HUE    ... of
//   cube.ppm, cube.out.ppm
// Prints the largest difference in levels.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <jpeglib.h>

#include "colorizer/recolorer.h"

namespace fs = std::filesystem;

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr unsigned kSide = 256;

void Write(const fs::path& path, const std::string& head, const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << head;
    file.write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
}

/// The last `count` bytes of a file.
Bytes ReadEnd(const fs::path& path, std::size_t count) {
    std::ifstream file(path, std::ios::binary);
    Bytes bytes(count);
    file.seekg(-static_cast<std::streamoff>(count), std::ios::end);
    file.read(reinterpret_cast<char*>(bytes.data()), std::ssize(bytes));
    if (!file) throw colorizer::Error("cannot read " + path.string());
    return bytes;
}

/// Y, Cb and Cr planes: squares of 8 x 8 with every 32 x 32 combination of Cb and Cr, Y along with
/// them.
Bytes Planes() {
    Bytes planes(3 * kSide * kSide);
    for (unsigned at = 0; at < kSide * kSide; ++at) {
        const unsigned x = at % kSide / 8, y = at / kSide / 8;
        planes[at] = static_cast<std::uint8_t>(16 + 3 * (x + y));
        planes[kSide * kSide + at] = static_cast<std::uint8_t>(24 + 207 * x / 31);
        planes[2 * kSide * kSide + at] = static_cast<std::uint8_t>(24 + 207 * y / 31);
    }
    return planes;
}

/// 4096 colours, so moderate that nothing is clamped: a matrix knows no clamping in between.
Bytes Cube() {
    Bytes rgb;
    for (unsigned at = 0; at < 4096; ++at) {
        for (const unsigned channel : {at >> 8, at >> 4 & 15, at & 15}) {
            rgb.push_back(static_cast<std::uint8_t>(64 + 8 * channel));
        }
    }
    return rgb;
}

/// Recolours the planes as a JPEG with steps of 1, in which each square is one block.
Bytes RecolorPlanes(const colorizer::Adjustment& adjustment) {
    const Bytes planes = Planes();
    jpeg_error_mgr errors;
    jpeg_compress_struct out;
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    out.err = jpeg_std_error(&errors);
    jpeg_create_compress(&out);
    jpeg_mem_dest(&out, &memory, &size);
    out.image_width = out.image_height = kSide;
    out.input_components = 3;
    out.in_color_space = JCS_YCbCr;
    jpeg_set_defaults(&out);
    jpeg_set_quality(&out, 100, TRUE);
    out.comp_info[0].h_samp_factor = out.comp_info[0].v_samp_factor = 1;
    jpeg_start_compress(&out, TRUE);
    for (unsigned y = 0; y < kSide; ++y) {
        Bytes line;
        for (unsigned x = 0; x < 3 * kSide; ++x)
            line.push_back(planes[(x % 3 * kSide + y) * kSide + x / 3]);
        JSAMPROW row = line.data();
        jpeg_write_scanlines(&out, &row, 1);
    }
    jpeg_finish_compress(&out);
    jpeg_destroy_compress(&out);
    const Bytes recolored = colorizer::Recolored({memory, size}, adjustment);
    std::free(memory);

    jpeg_decompress_struct in;
    in.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&in);
    jpeg_mem_src(&in, recolored.data(), static_cast<unsigned long>(recolored.size()));
    jpeg_read_header(&in, TRUE);
    in.out_color_space = JCS_YCbCr;
    jpeg_start_decompress(&in);
    Bytes result(planes.size()), line(3 * kSide);
    for (unsigned y = 0; y < kSide; ++y) {
        JSAMPROW row = line.data();
        jpeg_read_scanlines(&in, &row, 1);
        for (unsigned x = 0; x < 3 * kSide; ++x)
            result[(x % 3 * kSide + y) * kSide + x / 3] = line[x];
    }
    jpeg_destroy_decompress(&in);
    return result;
}

/// Recolours the cube's colours as the colour tables of GIFs.
Bytes RecolorCube(const colorizer::Adjustment& adjustment) {
    const Bytes cube = Cube();
    Bytes result;
    for (std::size_t at = 0; at < cube.size(); at += 768) {
        Bytes gif{'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0, 0xF7, 0, 0};
        gif.insert(gif.end(), cube.data() + at, cube.data() + at + 768);
        gif.push_back(';');
        const Bytes recolored = colorizer::Recolored(gif, adjustment);
        result.insert(result.end(), recolored.data() + 13, recolored.data() + 13 + 768);
    }
    return result;
}

void PrintLargestDifference(const Bytes& ours, const Bytes& theirs) {
    int largest = 0;
    for (std::size_t at = 0; at < ours.size(); ++at)
        largest = std::max(largest, std::abs(ours[at] - theirs[at]));
    std::printf("%d\n", largest);
}

}  // namespace

int main(int argumentCount, char** arguments) try {
    const std::string command = argumentCount > 2 ? arguments[1] : "";
    const fs::path folder = argumentCount > 2 ? arguments[2] : "";
    if (command == "make") {
        Write(folder / "planes.yuv", "", Planes());
        Write(folder / "cube.ppm", "P6 64 64 255\n", Cube());
    } else if (command == "planes" && argumentCount == 5) {
        const Bytes ours = RecolorPlanes({1, std::atof(arguments[3]), std::atof(arguments[4])});
        PrintLargestDifference(ours, ReadEnd(folder / "planes.out.yuv", ours.size()));
    } else if (command == "rgb" && argumentCount == 6) {
        const Bytes ours = RecolorCube(
            {std::atof(arguments[3]), std::atof(arguments[4]), std::atof(arguments[5])});
        PrintLargestDifference(ours, ReadEnd(folder / "cube.out.ppm", ours.size()));
    } else {
        std::fputs("usage: bench_agreement make|planes|rgb FOLDER ...\n", stderr);
        return 2;
    }
    return 0;
} catch (const colorizer::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
