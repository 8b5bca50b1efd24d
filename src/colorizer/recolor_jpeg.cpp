#include "colorizer/recolor_jpeg.h"

#include <algorithm>

#include "colorizer/sample_tile.h"

namespace colorizer {

namespace {

float Clamped(float sample) {
    return std::min(std::max(sample, kLowestSample), kHighestSample);
}

void RecolorLuma(float factor, float* y, std::size_t count) {
    for (std::size_t at = 0; at < count; ++at)
        y[at] = Clamped(factor * (y[at] - kLowestSample) + kLowestSample);
}

void RecolorChroma(const ColourMap& map, float* cb, float* cr, std::size_t count) {
    const float a = static_cast<float>(map.chroma[0][0]), b = static_cast<float>(map.chroma[0][1]);
    const float c = static_cast<float>(map.chroma[1][0]), d = static_cast<float>(map.chroma[1][1]);
    for (std::size_t at = 0; at < count; ++at) {
        const float oldCb = cb[at], oldCr = cr[at];
        cb[at] = Clamped(a * oldCb + b * oldCr);
        cr[at] = Clamped(c * oldCb + d * oldCr);
    }
}

void RecolorRgb(const ColourMap& map, float* red, float* green, float* blue, std::size_t count) {
    for (std::size_t at = 0; at < count; ++at) {
        const Rgb colour = Recolored(map, {red[at] + 128.0, green[at] + 128.0, blue[at] + 128.0});
        red[at] = static_cast<float>(colour.red - 128);
        green[at] = static_cast<float>(colour.green - 128);
        blue[at] = static_cast<float>(colour.blue - 128);
    }
}

/// `recolor` gets the tile with the values of all components side by side.
template <class Step>
void ThroughSamples(const std::vector<JpegComponent*>& components,
                    const std::vector<QuantTable>& targets, const Step& recolor) {
    SampleTile tile(components, targets);
    for (std::size_t y = 0; y < tile.TilesHigh(); ++y) {
        for (std::size_t x = 0; x < tile.TilesWide(); ++x) {
            tile.Load(x, y);
            recolor(tile);
            tile.Store(x, y);
        }
    }
    for (std::size_t index = 0; index < components.size(); ++index)
        components[index]->table = targets[index];
}

}  // namespace

void RecolorJpeg(JpegPicture& picture, const ColourMap& map, std::optional<int> quality) {
    std::vector<JpegComponent*> all;
    std::vector<QuantTable> targets;
    for (JpegComponent& component : picture.components) {
        all.push_back(&component);
        targets.push_back(component.table);
    }
    if (quality) {
        const auto tables = StandardTables(*quality);
        for (std::size_t index = 0; index < all.size(); ++index) {
            all[index]->tableSlot = index > 0 && picture.colour == JpegColour::kYCbCr ? 1 : 0;
            targets[index] = tables[all[index]->tableSlot];
        }
    }
    if (picture.colour == JpegColour::kRgb) {
        ThroughSamples(all, targets, [&](SampleTile& tile) {
            RecolorRgb(map, tile.Values(0), tile.Values(1), tile.Values(2), tile.ValueCount());
        });
        return;
    }
    if (map.luma != 1 || quality) {
        ThroughSamples({all[0]}, {targets[0]}, [&](SampleTile& tile) {
            RecolorLuma(static_cast<float>(map.luma), tile.Values(0), tile.ValueCount());
        });
    }
    if (picture.colour == JpegColour::kYCbCr) {
        ThroughSamples({all[1], all[2]}, {targets[1], targets[2]}, [&](SampleTile& tile) {
            RecolorChroma(map, tile.Values(0), tile.Values(1), tile.ValueCount());
        });
    }
}

}  // namespace colorizer
