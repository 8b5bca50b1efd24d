#include "image_editor/quality_factor.h"

#include "shared/numbers.h"

namespace morpho {

namespace {

constexpr char32_t kBackspace = 8;
constexpr int kLeastQuality = 1;

}  // namespace

QualityFactor::QualityFactor(TextBox& txtQF, ScrollBar& vsQF, std::function<bool()> takesFocus)
    : txtQF_(txtQF),
      vsQF_(vsQF),
      takesFocus_(std::move(takesFocus)),
      previousText_(std::to_string(kInitialQuality)) {
    txtQF_.SetTextQuietly(previousText_);
    txtQF_.StepWith(vsQF_);
}

void QualityFactor::txtQF_KeyPress(char32_t& key) {
    previousText_ = txtQF_.Text();
    if ((key < U'0' || key > U'9') && key != kBackspace) key = 0;
}

void QualityFactor::txtQF_Change() {
    const double value = Val(txtQF_.Text());
    if (value < kQualityMinimum || value > kQualityMaximum) txtQF_.SetText(previousText_);
    vsQF_.SetValue(WholeNumber(Val(txtQF_.Text())));
}

void QualityFactor::vsQF_Change() {
    if (takesFocus_()) txtQF_.SetFocus();
    if (vsQF_.Value() < kLeastQuality) vsQF_.SetValue(kLeastQuality);
    txtQF_.SetText(std::to_string(vsQF_.Value()));
}

}  // namespace morpho
