#include "theme_editor/adjustment_sliders.h"

#include <string>

namespace morpho {

AdjustmentSliders::AdjustmentSliders(Slider& sldBrightness, Label& lblBVal, Slider& sldSaturation,
                                     Label& lblSVal, Slider& sldHue, Label& lblHVal)
    : brightness_(sldBrightness),
      brightnessLabel_(lblBVal),
      saturation_(sldSaturation),
      saturationLabel_(lblSVal),
      hue_(sldHue),
      hueLabel_(lblHVal) {}

bool AdjustmentSliders::AreNeutral() const {
    return brightness_.Value() == kFactorRange.value && saturation_.Value() == kFactorRange.value &&
           hue_.Value() == kHueRange.value;
}

void AdjustmentSliders::ShowValues() {
    brightnessLabel_.SetCaption(std::to_string(brightness_.Value()) + " %");
    saturationLabel_.SetCaption(std::to_string(saturation_.Value()) + " %");
    hueLabel_.SetCaption(std::to_string(hue_.Value()));
}

void AdjustmentSliders::ShowValuesNow() {
    ShowValues();
    for (Label* label : {&brightnessLabel_, &saturationLabel_, &hueLabel_})
        label->Refresh();
}

void AdjustmentSliders::MoveToNeutral() {
    saturation_.SetValue(kFactorRange.value);
    brightness_.SetValue(kFactorRange.value);
    hue_.SetValue(kHueRange.value);
    ShowValues();  // a thumb that was still being dragged has raised no Change
}

}  // namespace morpho
