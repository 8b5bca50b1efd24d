#pragma once

#include <functional>
#include <string>

#include "forms/controls.h"
#include "forms/text_box.h"

namespace morpho {

// Range and initial value of a JPEG quality factor's controls. 0 occurs only while the box is
// empty; the scroll bar then turns it into 1.
inline constexpr int kQualityMinimum = 0;
inline constexpr int kQualityMaximum = 100;
inline constexpr int kInitialQuality = 75;

// Keeps a text box and a scroll bar at the same JPEG quality factor from 1 to 100. Its owner
// declares both controls and forwards their events.
class QualityFactor {
  public:
    // A new value gives the text box the focus when `takesFocus` returns true.
    QualityFactor(TextBox& txtQF, ScrollBar& vsQF, std::function<bool()> takesFocus);

    void txtQF_KeyPress(char32_t& key);
    void txtQF_Change();
    void vsQF_Change();

  private:
    TextBox& txtQF_;
    ScrollBar& vsQF_;
    std::function<bool()> takesFocus_;
    std::string previousText_;  // the box's text before the last key
};

}  // namespace morpho
