#pragma once

#include "forms/controls.h"

namespace morpho {

// The three sliders with their value labels.
class AdjustmentSliders {
  public:
    static constexpr Slider::Range kFactorRange{0, 400, 100, 1, 20, 50};
    static constexpr Slider::Range kHueRange{-180, 180, 0, 1, 15, 30};

    AdjustmentSliders(Slider& sldBrightness, Label& lblBVal, Slider& sldSaturation, Label& lblSVal,
                      Slider& sldHue, Label& lblHVal);

    double Brightness() const { return brightness_.Value() / 100.0; }  // factor, 0 to 4
    double Saturation() const { return saturation_.Value() / 100.0; }  // factor, 0 to 4
    double Hue() const { return hue_.Value(); }                        // degrees, -180 to 180
    bool AreNeutral() const;

    // Writes the values beside the sliders.
    void ShowValues();
    // The same, painted at once, for painting is held off while a thumb is dragged.
    void ShowValuesNow();
    // Puts all three back to neutral. Their Change events are raised.
    void MoveToNeutral();

  private:
    Slider& brightness_;
    Label& brightnessLabel_;
    Slider& saturation_;
    Label& saturationLabel_;
    Slider& hue_;
    Label& hueLabel_;
};

}  // namespace morpho
