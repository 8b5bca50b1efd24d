// A GIF keeps its length, and differs in the bytes of its colour tables only.

#include <vector>

#include "colorizer/colour_map.h"
#include "colorizer/gif.h"
#include "colorizer/recolorer.h"
#include "fuzz/fuzz.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

// Clears the colour tables of a GIF that was taken, so that what is left can be compared. Written
// after the format's description (GIF89a, 18 to 27), apart from the code under test.
void ClearTables(Bytes& gif) {
    std::size_t at = 6;
    const auto clearTable = [&](std::uint8_t flags) {
        if (!(flags & 0x80)) return;
        for (std::size_t left = 3u << ((flags & 7) + 1); left > 0 && at < gif.size(); --left)
            gif[at++] = 0;
    };
    const auto skipSubBlocks = [&] {
        while (at < gif.size() && gif[at] != 0)
            at += gif[at] + 1u;
        ++at;
    };
    at += 7;
    clearTable(gif[10]);
    while (at < gif.size() && gif[at] != 0x3B) {
        if (gif[at] == 0x21) {
            at += 2;
            skipSubBlocks();
        } else if (gif[at] == 0x2C && at + 10 <= gif.size()) {
            at += 10;
            clearTable(gif[at - 1]);
            ++at;
            skipSubBlocks();
        } else {
            return;
        }
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes before(data, data + size), after = before;
    if (!colorizer::IsGif(before)) return 0;
    try {
        colorizer::RecolorGif(after, colorizer::ColourMap({1.1, 0.7, 77}));
    } catch (const colorizer::Error&) {
        Require(after.size() == before.size(), "A GIF that is refused has another length.");
        return 0;
    }
    ClearTables(before);
    ClearTables(after);
    Require(after == before, "A GIF differs outside of its colour tables.");
    return 0;
}
