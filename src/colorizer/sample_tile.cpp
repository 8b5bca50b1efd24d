#include "colorizer/sample_tile.h"

#include <algorithm>
#include <numeric>

namespace colorizer {

bool AreSampledAlike(const std::vector<JpegComponent*>& components) {
    return std::all_of(components.begin(), components.end(), [&](const JpegComponent* component) {
        return component->horizontal == components[0]->horizontal &&
               component->vertical == components[0]->vertical;
    });
}

SampleTile::SampleTile(std::vector<JpegComponent*> components,
                       const std::vector<QuantTable>& targets) {
    const bool areAlike = AreSampledAlike(components);
    for (std::size_t index = 0; index < components.size(); ++index) {
        JpegComponent* const component = components[index];
        const std::size_t wide = areAlike ? 1 : std::size_t(component->horizontal);
        const std::size_t high = areAlike ? 1 : std::size_t(component->vertical);
        parts_.push_back({component, BlockScale(component->table, targets[index]), wide, high});
        wide_ = std::lcm(wide_, wide);
        high_ = std::lcm(high_, high);
    }
    for (Part& part : parts_)
        part.values.resize(ValueCount());
}

std::size_t SampleTile::TilesWide() const {
    return (parts_[0].component->blocksWide + parts_[0].wide - 1) / parts_[0].wide;
}

std::size_t SampleTile::TilesHigh() const {
    return (parts_[0].component->blocksHigh + parts_[0].high - 1) / parts_[0].high;
}

void SampleTile::Load(std::size_t tileX, std::size_t tileY) {
    float samples[64];
    for (Part& part : parts_) {
        for (std::size_t y = 0; y < part.high; ++y) {
            Block* const row = part.component->plane.Row(tileY * part.high + y) + tileX * part.wide;
            for (std::size_t x = 0; x < part.wide; ++x) {
                ToSamples(row[x], part.scale, samples);
                for (float& sample : samples)
                    sample = Clamped(sample);
                Spread(part, samples, x, y, part.values.data());
            }
        }
    }
}

void SampleTile::Store(std::size_t tileX, std::size_t tileY) {
    float samples[64];
    for (Part& part : parts_) {
        for (std::size_t y = 0; y < part.high; ++y) {
            Block* const row = part.component->plane.Row(tileY * part.high + y) + tileX * part.wide;
            for (std::size_t x = 0; x < part.wide; ++x) {
                Average(part, part.values.data(), x, y, samples);
                FromSamples(samples, part.scale, row[x]);
            }
        }
    }
}

void SampleTile::Spread(const Part& part, const float* samples, std::size_t blockX,
                        std::size_t blockY, float* values) const {
    const std::size_t across = wide_ / part.wide, down = high_ / part.high;
    for (std::size_t y = 0; y < 8 * down; ++y) {
        float* const row = values + (8 * down * blockY + y) * 8 * wide_ + 8 * across * blockX;
        for (std::size_t x = 0; x < 8 * across; ++x)
            row[x] = samples[y / down * 8 + x / across];
    }
}

void SampleTile::Average(const Part& part, const float* values, std::size_t blockX,
                         std::size_t blockY, float* samples) const {
    const std::size_t across = wide_ / part.wide, down = high_ / part.high;
    std::fill_n(samples, 64, 0.0F);
    for (std::size_t y = 0; y < 8 * down; ++y) {
        const float* const row = values + (8 * down * blockY + y) * 8 * wide_ + 8 * across * blockX;
        for (std::size_t x = 0; x < 8 * across; ++x)
            samples[y / down * 8 + x / across] += row[x];
    }
    for (int k = 0; k < 64; ++k)
        samples[k] /= static_cast<float>(across * down);
}

}  // namespace colorizer
