#include <gmock/gmock.h>

#include <cstring>

#include "colorizer/pictures.h"
#include "colorizer/recolorer.h"

namespace colorizer {
namespace {

/// By a GIF of one colour table, without pictures.
void ExpectColour(const Bytes& before, const Adjustment& adjustment, const Bytes& after) {
    const Bytes head = FromText("GIF87a") + Bytes{1, 0, 1, 0, 0x80, 0, 0}, tail{0, 0, 0, 0x3B};
    EXPECT_EQ(Recolored(head + before + tail, adjustment), head + after + tail)
        << adjustment.brightness << " " << adjustment.saturation << " " << adjustment.hueDegrees;
}

TEST(GifColours, FollowTheFormula) {
    // Worked out elsewhere, in double precision.
    ExpectColour({255, 0, 0}, {1, 1, 120}, {0, 179, 0});
    ExpectColour({120, 80, 40}, {1, 1, 120}, {39, 115, 75});
    ExpectColour({120, 80, 40}, {1, 1, -90}, {125, 60, 129});
    ExpectColour({120, 80, 40}, {1, 0, 33}, {87, 87, 87});
    ExpectColour({120, 80, 40}, {0, 1, 0}, {0, 0, 0});
    ExpectColour({120, 80, 40}, {4, 4, 0}, {255, 208, 28});
    ExpectColour({0, 0, 255}, {1, 4, 0}, {0, 45, 254});
    ExpectColour({77, 77, 77}, {0.5, 3, 50}, {39, 39, 39});
    ExpectColour({200, 200, 200}, {2, 1, 50}, {255, 255, 255});
}

TEST(Gif, ChangesOnlyColourTables) {
    std::vector<std::pair<std::size_t, std::size_t>> tables;
    const Bytes before = MakeGif(&tables);
    Bytes after = Recolored(before, {0.5, 1, 70}, 80);
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [start, entries] : tables) {
        EXPECT_NE(std::memcmp(after.data() + start, before.data() + start, 3 * entries), 0);
        std::copy_n(before.data() + start, 3 * entries, after.data() + start);
    }
    EXPECT_EQ(after, before);
}

TEST(Gif, CutAnywhereButBehindAnImageIsRefused) {
    const Bytes gif = MakeGif();
    const std::size_t endOfFirstImage = gif.size() - 1 - 5 - 24 - 10;
    for (std::size_t length = 0; length < gif.size(); ++length) {
        const std::span cut = std::span(gif).first(length);
        if (length == endOfFirstImage || length == gif.size() - 1) {
            EXPECT_EQ(Recolored(cut, {1, 0, 0}).size(), length);
        } else {
            EXPECT_THROW(Recolored(cut, {1, 0, 0}), Error) << length;
        }
    }
}

TEST(Gif, WithAnUnknownBlockIsRefused) {
    Bytes gif = MakeGif();
    gif.back() = 0x3A;
    EXPECT_THROW(Recolored(gif, {1, 0, 0}), Error);
}

}  // namespace
}  // namespace colorizer
