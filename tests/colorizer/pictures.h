#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Small pictures, made by libjpeg or by hand, and what the tests look at in a file.

using Bytes = std::vector<std::uint8_t>;

Bytes operator+(Bytes left, const Bytes& right);
Bytes FromText(const std::string& text);
std::string ToText(const Bytes& bytes);

struct JpegKind {
    unsigned width = 45, height = 27;
    char colour = 'y';  ///< y YCbCr, g grey, r RGB, k CMYK
    std::array<std::pair<int, int>, 3> sampling{{{2, 2}, {1, 1}, {1, 1}}};
    int quality = 85;
    bool isProgressive = false, isArithmetic = false, hasOwnHuffmanTables = false,
         isInterleaved = true;
    unsigned restartInterval = 0;
    unsigned grain = 0;  ///< levels of noise
    Bytes segments{};    ///< after the file's first segment
};
Bytes MakeJpeg(const JpegKind& kind);

/// A segment of a JPEG file: marker and content.
struct Segment {
    int marker;
    Bytes content;
    std::size_t start;  ///< place in the file
    bool operator==(const Segment& other) const {
        return marker == other.marker && content == other.content;
    }
};
/// Those with markers from `first` to `last`.
std::vector<Segment> Segments(const Bytes& jpeg, int first = 0, int last = 0xFF);
Bytes MakeSegment(int marker, const Bytes& content);

/// Samples of all components, interleaved, coarser ones repeated; YCbCr for colour pictures.
Bytes Samples(const Bytes& jpeg);

/// An animated GIF89a with a global table, a local one, an interlaced frame, a transparent colour,
/// a comment and an application block. `tables` gets the place and entry count of each colour
/// table.
Bytes MakeGif(std::vector<std::pair<std::size_t, std::size_t>>* tables = nullptr);
