#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "colorizer/colour_map.h"
#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// Recolours a picture's coefficients, row by row, just before they are written: they are in the
/// processor's cache then. With a quality (1 to 100) the picture gets the standard tables of that
/// quality, without one it keeps its own.
class JpegRecoloring : public RowPreparation {
  public:
    /// The picture has its new tables from here on. It must outlive this.
    JpegRecoloring(JpegPicture& picture, const ColourMap& map, std::optional<int> quality);

    bool Prepare(const JpegComponent& component, std::size_t rows) override;

  private:
    /// Components that are recoloured together, from the top down, some rows of blocks at a time.
    struct Group {
        std::vector<JpegComponent*> components;
        std::vector<std::size_t> rowsInStep;  ///< of each component
        std::size_t stepCount;
        std::function<void(std::size_t step)> recolor;
        std::size_t stepsDone = 0;
    };

    void AddGroup(const std::vector<JpegComponent*>& components,
                  std::function<void(std::size_t step)> recolor);

    std::vector<Group> groups_;
};

}  // namespace colorizer
