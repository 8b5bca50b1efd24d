#include <gmock/gmock.h>

#include <cmath>
#include <complex>
#include <random>

#include "colorizer/pictures.h"
#include "colorizer/recolorer.h"

namespace colorizer {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

constexpr int kDqt = 0xDB, kDri = 0xDD, kSof0 = 0xC0, kSof2 = 0xC2, kSos = 0xDA;
constexpr std::array<std::pair<int, int>, 3> k444{{{1, 1}, {1, 1}, {1, 1}}};

/// Every kind of file that is taken.
const std::vector<std::pair<const char*, JpegKind>> kKinds{
    {"4:2:0", {}},
    {"4:4:4", {.sampling = k444}},
    {"4:2:2", {.sampling = {{{2, 1}, {1, 1}, {1, 1}}}}},
    {"4:4:0", {.sampling = {{{1, 2}, {1, 1}, {1, 1}}}}},
    {"4:1:1", {.sampling = {{{4, 1}, {1, 1}, {1, 1}}}}},
    {"Cb and Cr unlike", {.sampling = {{{2, 2}, {2, 1}, {1, 2}}}}},
    {"grey", {.colour = 'g'}},
    {"RGB", {.colour = 'r'}},
    {"RGB, progressive", {.colour = 'r', .isProgressive = true}},
    {"progressive", {.isProgressive = true}},
    {"progressive, restarts", {.sampling = k444, .isProgressive = true, .restartInterval = 2}},
    {"restarts", {.restartInterval = 2}},
    {"planes", {.isInterleaved = false}},
    {"own Huffman tables", {.hasOwnHuffmanTables = true}},
    {"16-bit steps", {.quality = 3}},
    {"Exif, profile, comment",
     {.segments = MakeSegment(0xE1, FromText("Exif") + Bytes(300, 7)) +
                  MakeSegment(0xE2, FromText("ICC_PROFILE") + Bytes(99, 3)) +
                  MakeSegment(0xFE, FromText("made by hand"))}},
    {"one pixel", {.width = 1, .height = 1}},
    {"whole blocks", {.width = 48, .height = 32}},
    {"one pixel over", {.width = 33, .height = 17}},
};

std::vector<Segment> Frame(const Bytes& jpeg) {
    return Segments(jpeg, kSof0, kSof2);
}

void ExpectSegmentsKept(const Bytes& after, const Bytes& before) {
    EXPECT_EQ(Segments(after, 0xE0, 0xFE), Segments(before, 0xE0, 0xFE));
    EXPECT_EQ(Segments(after, kDri, kDri), Segments(before, kDri, kDri));
    EXPECT_EQ(Segments(after, kSos, kSos).size(), Segments(before, kSos, kSos).size());
}

TEST(Jpeg, KeepsAllButTheCoefficientsAndTablesOfAnotherQuality) {
    for (const auto& [name, kind] : kKinds) {
        SCOPED_TRACE(name);
        const Bytes before = MakeJpeg(kind) + FromText("trailing bytes");
        const Bytes after = Recolored(before, {0.9, 1.2, 50});
        ExpectSegmentsKept(after, before);
        EXPECT_EQ(Frame(after), Frame(before));
        EXPECT_EQ(Segments(after, kDqt, kDqt), Segments(before, kDqt, kDqt));
        EXPECT_EQ(Bytes(after.end() - 14, after.end()), FromText("trailing bytes"));

        JpegKind asked = kind;
        asked.quality = 60;
        const Bytes withQuality = Recolored(before, {}, 60);
        ExpectSegmentsKept(withQuality, before);
        EXPECT_EQ(Segments(withQuality, kDqt, kDqt), Segments(MakeJpeg(asked), kDqt, kDqt));
    }
}

/// The exact colour after the pass: YCbCr, grey or RGB as in the file.
std::array<double, 3> Exact(std::array<double, 3> colour, const Adjustment& adjustment, char kind) {
    auto& [y, cb, cr] = colour;
    if (kind == 'r') {
        const auto [red, green, blue] = colour;
        y = 0.299 * red + 0.587 * green + 0.114 * blue;
        cb = (blue - y) / 1.772 + 128;
        cr = (red - y) / 1.402 + 128;
    }
    const std::complex<double> chroma = std::polar(adjustment.brightness * adjustment.saturation,
                                                   adjustment.hueDegrees * std::acos(-1.0) / 180) *
                                        std::complex(cb - 128, cr - 128);
    y = std::clamp(adjustment.brightness * y, 0.0, 255.0);
    cb = std::clamp(chroma.real(), -128.0, 127.0) + 128;
    cr = std::clamp(chroma.imag(), -128.0, 127.0) + 128;
    if (kind != 'r') return colour;
    const double red = y + 1.402 * (cr - 128), blue = y + 1.772 * (cb - 128);
    return {red, (y - 0.299 * red - 0.114 * blue) / 0.587, blue};
}

/// The mean distance of the samples from the exact ones, in levels.
double MeanError(const Bytes& before, const Bytes& after, const Adjustment& adjustment, char kind) {
    const Bytes old = Samples(before), recolored = Samples(after);
    const std::size_t channels = kind == 'g' ? 1 : 3;
    double sum = 0;
    for (std::size_t at = 0; at < old.size(); at += channels) {
        std::array<double, 3> colour{128, 128, 128};
        std::copy_n(old.data() + at, channels, colour.begin());
        const auto exact = Exact(colour, adjustment, kind);
        for (std::size_t c = 0; c < channels; ++c)
            sum += std::abs(recolored[at + c] - std::clamp(exact[c], 0.0, 255.0));
    }
    return sum / static_cast<double>(old.size());
}

TEST(Jpeg, HasTheColoursOfTheFormula) {
    const Adjustment adjustments[] = {{1, 1, 77}, {0.6, 1, 0}, {1, 1.7, 0}, {1.5, 2, -130},
                                      {1, 0, 0},  {4, 4, 180}, {0, 1, 20},  {0.3, 4, 90}};
    for (auto [name, kind] : kKinds) {
        kind.quality = 100;
        const Bytes before = MakeJpeg(kind);
        const bool isUnlike = kind.sampling[1] != kind.sampling[2];
        for (const Adjustment& adjustment : adjustments) {
            const Bytes after = Recolored(before, adjustment);
            EXPECT_LT(MeanError(before, after, adjustment, kind.colour), isUnlike ? 3 : 0.8)
                << name << ", adjustment " << &adjustment - adjustments;
        }
    }
}

TEST(Jpeg, MayGrow) {
    JpegKind kind{.width = 400, .height = 300, .quality = 30, .grain = 160};
    for (const bool isProgressive : {false, true}) {
        kind.isProgressive = isProgressive;
        const Bytes before = MakeJpeg(kind);
        const Bytes after = Recolored(before + Bytes(9000, 'x'), {}, 100);
        ASSERT_GT(after.size(), 9000 + 3 * before.size() / 2);
        EXPECT_LT(MeanError(before, after, {}, 'y'), 0.5);
        EXPECT_EQ(Bytes(after.end() - 9000, after.end()), Bytes(9000, 'x'));
    }
}

TEST(Jpeg, WithoutBrightnessIsBlackEvenWithCoarseTables) {
    const Bytes samples = Samples(Recolored(MakeJpeg({.colour = 'g', .quality = 5}), {0, 1, 0}));
    EXPECT_THAT(samples, testing::Each(0));
}

void ExpectRefused(const Bytes& jpeg, const char* reason) {
    EXPECT_THAT([&] { Recolored(jpeg, {1, 1, 90}); }, ThrowsMessage<Error>(HasSubstr(reason)));
}

Bytes WithByte(Bytes jpeg, std::size_t place, std::uint8_t value) {
    jpeg[place] = value;
    return jpeg;
}

TEST(Jpeg, OfAnotherKindIsRefused) {
    const Bytes jpeg = MakeJpeg({});
    const std::size_t frame = Frame(jpeg)[0].start;
    ExpectRefused(MakeJpeg({.colour = 'k'}), "CMYK");
    ExpectRefused(MakeJpeg({.isArithmetic = true}), "arithmetic");
    ExpectRefused(WithByte(jpeg, frame + 1, 0xC3), "Lossless");
    ExpectRefused(WithByte(jpeg, frame + 4, 12), "12 bits");
    ExpectRefused(WithByte(jpeg, frame + 9, 1), "damaged");  // components for three are there
    ExpectRefused(FromText("BM is another format"), "neither");
    ExpectRefused({}, "neither");
}

TEST(Jpeg, ThatClaimsTooMuchIsRefused) {
    const Bytes jpeg = MakeJpeg({});
    const std::size_t frame = Frame(jpeg)[0].start;
    const auto sized = [&](std::uint8_t high) {
        return WithByte(WithByte(jpeg, frame + 5, high), frame + 7, high);
    };
    ExpectRefused(sized(0xFF), "too many pixels");
    ExpectRefused(sized(0x20), "truncated");
    Bytes segments;
    for (std::size_t count = 0; count < kMaxSegments; ++count)
        segments = std::move(segments) + MakeSegment(0xFE, {});
    ExpectRefused(MakeJpeg({.segments = segments}), "too many marker segments");
    // Its last scan again and again: little to store, much to decode.
    Bytes large = MakeJpeg({.width = 4300, .height = 4300, .colour = 'g', .isProgressive = true});
    const auto lastScan = large.begin() + std::ptrdiff_t(Segments(large, 0xDA, 0xDA).back().start);
    const Bytes scan(lastScan, large.end() - 2);
    large.resize(large.size() - 2);
    for (int count = 0; count < 120; ++count)
        large = std::move(large) + scan;
    ExpectRefused(large + Bytes{0xFF, 0xD9}, "too many scans for its size");
}

TEST(Jpeg, CutAnywhereIsRefused) {
    const Bytes end{0xFF, 0xD9};
    const auto expectCutRefused = [&](const Bytes& jpeg, std::size_t step) {
        for (std::size_t length = 0; length < jpeg.size(); length += step) {
            const Bytes cut(jpeg.data(), jpeg.data() + length);
            EXPECT_THROW(Recolored(cut, {1, 1, 90}), Error) << length;
            if (length < 700 || length + 20 > jpeg.size()) continue;
            EXPECT_THROW(Recolored(cut + end, {1, 1, 90}), Error) << length << " and an end marker";
        }
    };
    expectCutRefused(MakeJpeg({}), 1);
    expectCutRefused(MakeJpeg({.isProgressive = true}), 1);
    // Large enough to be read and written at once.
    for (const bool isProgressive : {false, true}) {
        const Bytes large =
            MakeJpeg({.width = 700, .height = 600, .isProgressive = isProgressive, .grain = 30});
        expectCutRefused(large, large.size() / 8);
    }
}

Bytes AfterPasses(Bytes jpeg, int passes, const Adjustment& adjustment) {
    for (int pass = 0; pass < passes; ++pass)
        jpeg = Recolored(jpeg, adjustment);
    return jpeg;
}

TEST(Jpeg, ComesBackAfterWholeTurns) {
    JpegKind kind{.width = 200, .height = 150, .quality = 80, .grain = 60};
    for (const bool isProgressive : {false, true}) {
        kind.isProgressive = isProgressive;
        const Bytes jpeg = MakeJpeg(kind);
        EXPECT_EQ(Samples(AfterPasses(jpeg, 4, {1, 1, 90})), Samples(jpeg));
        EXPECT_EQ(Samples(AfterPasses(jpeg, 2, {1, 1, -540})), Samples(jpeg));
        EXPECT_LT(MeanError(jpeg, AfterPasses(jpeg, 10, {1, 1, 36}), {}, 'y'), 2.5);
    }
    // So large that several threads encode its scans; the library has encoded the source's in one.
    const Bytes large = MakeJpeg({.width = 600,
                                  .height = 500,
                                  .quality = 60,
                                  .isProgressive = true,
                                  .restartInterval = 7,
                                  .segments = MakeSegment(0xFE, FromText("large"))}) +
                        FromText("trailing");
    EXPECT_EQ(AfterPasses(large, 4, {1, 1, 90}), large);
}

TEST(Jpeg, DamagedAnywhereIsRefusedOrStaysReadable) {
    std::mt19937 random(3);
    for (const auto& [name, kind] : kKinds) {
        const Bytes jpeg = MakeJpeg(kind);
        for (int count = 0; count < 100; ++count) {
            Bytes damaged = jpeg;
            for (int flips = 1 + count % 3; flips > 0; --flips)
                damaged[random() % jpeg.size()] = static_cast<std::uint8_t>(random());
            try {
                const Bytes after = Recolored(damaged, {1.5, 2, 50});
                EXPECT_NO_THROW(Recolored(after, {1, 1, 50})) << name << " " << count;
            } catch (const Error&) {
            }
        }
    }
}

}  // namespace
}  // namespace colorizer
