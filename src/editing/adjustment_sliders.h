#pragma once

#include "editing/element_adjustment.h"
#include "forms/controls.h"

namespace morpho {

// The three sliders with their value labels.
class AdjustmentSliders {
  public:
    static constexpr Slider::Range kFactorRange{0, 400, 100, 1, 20, 50};
    static constexpr Slider::Range kHueRange{-180, 180, 0, 1, 15, 30};

    struct LabelledSlider {
        Slider& slider;
        Label& value;
    };
    AdjustmentSliders(LabelledSlider brightness, LabelledSlider saturation, LabelledSlider hue)
        : brightness_(brightness), saturation_(saturation), hue_(hue) {}

    // What the sliders ask for, a thumb that is still held included.
    ElementAdjustment Adjustment() const;

    // Writes the values beside the sliders.
    void ShowValues();
    // The same, painted immediately, for painting is held off while a thumb is dragged.
    void ShowValuesNow();
    // Puts all three back to neutral. No Change is raised.
    void MoveToNeutral();

  private:
    LabelledSlider brightness_;
    LabelledSlider saturation_;
    LabelledSlider hue_;
};

}  // namespace morpho
