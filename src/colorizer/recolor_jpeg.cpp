#include "colorizer/recolor_jpeg.h"

#include <algorithm>

#include "colorizer/coefficient_path.h"
#include "colorizer/sample_tile.h"

namespace colorizer {

namespace {

using Step = std::function<void(std::size_t)>;
using Components = std::vector<JpegComponent*>;
using Tables = std::vector<QuantTable>;

Step LumaStep(const ColourMap& map, JpegComponent& luma, const QuantTable& target) {
    return [&luma, path = LumaPath(map.luma, luma.table, target)](std::size_t row) {
        path.Recolor(luma.plane.Row(row), luma.blocksWide);
    };
}

Step ChromaStep(const ColourMap& map, JpegComponent& cb, JpegComponent& cr, const Tables& targets) {
    const ChromaPath path(map, {cb.table, cr.table}, {targets[0], targets[1]});
    return [&cb, &cr, path](std::size_t row) {
        path.Recolor(cb.plane.Row(row), cr.plane.Row(row), cb.blocksWide);
    };
}

/// `recolor` gets a tile and the place of a value in it.
template <class Recolor>
Step TileStep(const Components& components, const Tables& targets, const Recolor& recolor) {
    return [tile = SampleTile(components, targets), recolor](std::size_t row) mutable {
        for (std::size_t column = 0; column < tile.TilesWide(); ++column) {
            tile.Load(column, row);
            for (std::size_t at = 0; at < tile.ValueCount(); ++at)
                recolor(tile, at);
            tile.Store(column, row);
        }
    };
}

Step ChromaTileStep(const ColourMap& map, const Components& components, const Tables& targets) {
    return TileStep(components, targets, [map](SampleTile& tile, std::size_t at) {
        float& cb = tile.Values(0)[at];
        float& cr = tile.Values(1)[at];
        const double oldCb = cb, oldCr = cr;
        cb = Clamped(static_cast<float>(map.chroma[0][0] * oldCb + map.chroma[0][1] * oldCr));
        cr = Clamped(static_cast<float>(map.chroma[1][0] * oldCb + map.chroma[1][1] * oldCr));
    });
}

Step RgbTileStep(const ColourMap& map, const Components& components, const Tables& targets) {
    return TileStep(components, targets, [map](SampleTile& tile, std::size_t at) {
        float& red = tile.Values(0)[at];
        float& green = tile.Values(1)[at];
        float& blue = tile.Values(2)[at];
        const Rgb colour = Recolored(map, {red + 128.0, green + 128.0, blue + 128.0});
        red = static_cast<float>(colour.red - 128);
        green = static_cast<float>(colour.green - 128);
        blue = static_cast<float>(colour.blue - 128);
    });
}

/// The tables that the components will have. Sets their slots.
Tables TargetTables(JpegPicture& picture, std::optional<int> quality) {
    Tables targets;
    for (JpegComponent& component : picture.components) {
        const bool isChroma = picture.colour == JpegColour::kYCbCr && !targets.empty();
        if (quality) component.tableSlot = isChroma ? 1 : 0;
        targets.push_back(quality ? StandardTables(*quality)[component.tableSlot]
                                  : component.table);
    }
    return targets;
}

}  // namespace

JpegRecoloring::JpegRecoloring(JpegPicture& picture, const ColourMap& map,
                               std::optional<int> quality) {
    const Tables targets = TargetTables(picture, quality);
    Components all;
    for (JpegComponent& component : picture.components)
        all.push_back(&component);
    if (picture.colour == JpegColour::kRgb) {
        AddGroup(all, RgbTileStep(map, all, targets));
    } else if (map.luma != 1 || quality) {
        AddGroup({all[0]}, LumaStep(map, *all[0], targets[0]));
    }
    if (picture.colour == JpegColour::kYCbCr) {
        const Components chroma{all[1], all[2]};
        const Tables chromaTargets{targets[1], targets[2]};
        AddGroup(chroma, AreSampledAlike(chroma) ? ChromaStep(map, *all[1], *all[2], chromaTargets)
                                                 : ChromaTileStep(map, chroma, chromaTargets));
    }
    for (std::size_t index = 0; index < all.size(); ++index)
        all[index]->table = targets[index];
}

void JpegRecoloring::AddGroup(const Components& components, Step recolor) {
    const JpegComponent& first = *components[0];
    const bool areAlike = AreSampledAlike(components);
    Group group{components, {}, 0, std::move(recolor)};
    for (const JpegComponent* component : components) {
        group.rowsInStep.push_back(areAlike ? 1 : std::size_t(component->vertical));
    }
    group.stepCount = (first.blocksHigh + group.rowsInStep[0] - 1) / group.rowsInStep[0];
    groups_.push_back(std::move(group));
}

bool JpegRecoloring::Prepare(const JpegComponent& component, std::size_t rows) {
    for (Group& group : groups_) {
        const auto found = std::find(group.components.begin(), group.components.end(), &component);
        if (found == group.components.end()) continue;
        const std::size_t rowsInStep =
            group.rowsInStep[std::size_t(found - group.components.begin())];
        const std::size_t steps = std::min((rows + rowsInStep - 1) / rowsInStep, group.stepCount);
        while (group.stepsDone < steps)
            group.recolor(group.stepsDone++);
    }
    return true;
}

}  // namespace colorizer
