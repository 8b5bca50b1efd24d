#pragma once

#include <memory>
#include <string>

#include "editing/element_adjustment.h"
#include "forms/controls.h"
#include "platform/colorizer.h"
#include "shared/component.h"

namespace morpho {

// The strip of colours that follows the sliders: `imgBand` shows it as it is, `picBand` recoloured.
class ColourBand {
  public:
    ColourBand(const Program& program, PictureBox& imgBand, PictureBox& picBand)
        : program_(program), imgBand_(imgBand), picBand_(picBand) {}

    // Writes the band picture into the temporary folder (with a trailing "\"), shows it and makes
    // the colorizer for it.
    void Open(Form& form, const std::string& tempPath);
    // Deletes the files; one that cannot be deleted is left.
    void Close();
    // Recolours the band and shows it. Before Open, or when recolouring fails, the strip stays as
    // it is.
    void UpdateColourBand(const ElementAdjustment& adjustment);

  private:
    const Program program_;
    PictureBox& imgBand_;
    PictureBox& picBand_;
    std::string colorBandFile_;
    std::string processedColorBandFile_;
    std::unique_ptr<Colorizer> bandColorizer_;
};

}  // namespace morpho
