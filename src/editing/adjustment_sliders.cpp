#include "editing/adjustment_sliders.h"

#include <string>

namespace morpho {

namespace {

// The sliders of the factors count in per cent.
double Factor(const Slider& slider) {
    return slider.Value() / 100.0;
}

}  // namespace

ElementAdjustment AdjustmentSliders::Adjustment() const {
    return {Factor(saturation_.slider), static_cast<double>(hue_.slider.Value()),
            Factor(brightness_.slider)};
}

void AdjustmentSliders::ShowValues() {
    for (const LabelledSlider& factor : {brightness_, saturation_})
        factor.value.SetCaption(std::to_string(factor.slider.Value()) + " %");
    hue_.value.SetCaption(std::to_string(hue_.slider.Value()));
}

void AdjustmentSliders::ShowValuesNow() {
    ShowValues();
    for (const LabelledSlider& each : {brightness_, saturation_, hue_})
        each.value.Refresh();
}

void AdjustmentSliders::MoveToNeutral() {
    saturation_.slider.SetValueQuietly(kFactorRange.value);
    brightness_.slider.SetValueQuietly(kFactorRange.value);
    hue_.slider.SetValueQuietly(kHueRange.value);
    ShowValues();
}

}  // namespace morpho
