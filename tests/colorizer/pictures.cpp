#include "colorizer/pictures.h"

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Bytes FromText(const std::string& text) {
    return Bytes(text.begin(), text.end());
}

std::string ToText(const Bytes& bytes) {
    return std::string(bytes.begin(), bytes.end());
}

namespace {

std::array<int, 4> Colour(const JpegKind& kind, unsigned x, unsigned y) {
    const int edge = x > kind.width / 2 ? 90 : 0;
    const int across = static_cast<int>(x * 120 / kind.width);
    const int down = static_cast<int>(y * 120 / kind.height);
    const int grain = kind.grain ? static_cast<int>((x * 7919 ^ y * 104729) % kind.grain) : 0;
    return {40 + across + edge - grain, 60 + down, 220 - across - edge / 2, 30};
}

}  // namespace

Bytes MakeJpeg(const JpegKind& kind) {
    jpeg_error_mgr errors;
    jpeg_compress_struct info;
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    jpeg_mem_dest(&info, &memory, &size);
    info.image_width = kind.width;
    info.image_height = kind.height;
    info.input_components = kind.colour == 'g' ? 1 : kind.colour == 'k' ? 4 : 3;
    info.in_color_space = kind.colour == 'g'   ? JCS_GRAYSCALE
                          : kind.colour == 'k' ? JCS_CMYK
                                               : JCS_RGB;
    jpeg_set_defaults(&info);
    if (kind.colour == 'r') jpeg_set_colorspace(&info, JCS_RGB);
    jpeg_set_quality(&info, kind.quality, FALSE);
    for (int index = 0; index < info.num_components && kind.colour == 'y'; ++index) {
        info.comp_info[index].h_samp_factor = kind.sampling[index].first;
        info.comp_info[index].v_samp_factor = kind.sampling[index].second;
    }
    if (kind.isProgressive) jpeg_simple_progression(&info);
    const jpeg_scan_info planes[] = {
        {1, {0}, 0, 63, 0, 0}, {1, {1}, 0, 63, 0, 0}, {1, {2}, 0, 63, 0, 0}};
    if (!kind.isInterleaved) info.scan_info = planes, info.num_scans = 3;
    info.restart_interval = kind.restartInterval;
    info.arith_code = kind.isArithmetic;
    info.optimize_coding = kind.hasOwnHuffmanTables;
    jpeg_start_compress(&info, TRUE);
    for (unsigned y = 0; y < kind.height; ++y) {
        Bytes row;
        for (unsigned x = 0; x < kind.width; ++x) {
            const auto colour = Colour(kind, x, y);
            for (int c = 0; c < info.input_components; ++c)
                row.push_back(static_cast<std::uint8_t>(colour[c]));
        }
        JSAMPROW start = row.data();
        jpeg_write_scanlines(&info, &start, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const Bytes jpeg(memory, memory + size);
    std::free(memory);
    const std::uint8_t* const second = jpeg.data() + Segments(jpeg)[1].start;
    return Bytes(jpeg.data(), second) + kind.segments + Bytes(second, jpeg.data() + jpeg.size());
}

std::vector<Segment> Segments(const Bytes& jpeg, int first, int last) {
    const auto isMarker = [&](std::size_t at) {
        return jpeg[at] == 0xFF && jpeg[at + 1] != 0 && (jpeg[at + 1] & 0xF8) != 0xD0;
    };
    std::vector<Segment> segments;
    for (std::size_t at = 2; jpeg[at + 1] != 0xD9;) {
        const int marker = jpeg[at + 1];
        const std::size_t start = at, length = jpeg[at + 2] * 256u + jpeg[at + 3];
        if (marker >= first && marker <= last)
            segments.push_back({marker, Bytes(&jpeg[at + 4], &jpeg[at + 2 + length]), start});
        for (at += 2 + length; !isMarker(at);)
            ++at;
    }
    return segments;
}

Bytes MakeSegment(int marker, const Bytes& content) {
    const std::size_t length = content.size() + 2;
    return Bytes{0xFF, static_cast<std::uint8_t>(marker), static_cast<std::uint8_t>(length >> 8),
                 static_cast<std::uint8_t>(length)} +
           content;
}

Bytes Samples(const Bytes& jpeg) {
    jpeg_error_mgr errors;
    jpeg_decompress_struct info;
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, jpeg.data(), static_cast<unsigned long>(jpeg.size()));
    jpeg_read_header(&info, TRUE);
    info.out_color_space = info.jpeg_color_space;
    info.do_fancy_upsampling = FALSE;
    info.do_block_smoothing = FALSE;
    jpeg_start_decompress(&info);
    const std::size_t rowBytes = std::size_t{info.output_width} * info.output_components;
    Bytes samples(rowBytes * info.output_height);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = samples.data() + rowBytes * info.output_scanline;
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_destroy_decompress(&info);
    return samples;
}

Bytes MakeGif(std::vector<std::pair<std::size_t, std::size_t>>* tables) {
    Bytes gif = FromText("GIF89a") + Bytes{2, 0, 2, 0, 0x81, 1, 0};
    const auto addTable = [&](std::size_t entries, unsigned seed) {
        if (tables) tables->push_back({gif.size(), entries});
        for (unsigned at = 0; at < 3 * entries; ++at)
            gif.push_back(static_cast<std::uint8_t>(at * 37 + seed));
    };
    const Bytes pixels{2, 2, 0x4C, 0x01, 0};  // code size 2, one sub-block, end
    addTable(4, 11);
    gif = gif + Bytes{0x21, 0xFF, 11} + FromText("NETSCAPE2.0") + Bytes{3, 1, 0, 0, 0};
    gif = gif + Bytes{0x21, 0xFE, 5} + FromText(",\x3B!GI") + Bytes{0};
    gif = gif + Bytes{0x21, 0xF9, 4, 1, 10, 0, 3, 0};
    gif = gif + Bytes{0x2C, 0, 0, 0, 0, 2, 0, 2, 0, 0x40} + pixels;
    gif = gif + Bytes{0x2C, 0, 0, 0, 0, 2, 0, 2, 0, 0x82};
    addTable(8, 200);
    return gif + pixels + Bytes{0x3B};
}
