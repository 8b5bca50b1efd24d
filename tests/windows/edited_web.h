#pragma once

#include "desktop/batch_window.h"
#include "support/temporary_folder.h"

namespace morpho::test {

// What an editing of the sample web leaves.
struct EditedWeb {
    Tree web;
    Tree userThemes;

    bool operator==(const EditedWeb&) const = default;
};

// The editing that the tests compare: "orrery", recoloured or not, is saved as another theme that
// the web gets.
enum class Recolours { kNothing, kAll };
inline constexpr int kHue = 120;
inline constexpr int kBrightness = 80;
void SaveAsDusk(BatchWindow& window, Recolours recolours);

// It, recoloured, done by the desktop program on a copy of the sample web.
EditedWeb EditedByDesktopProgram();

}  // namespace morpho::test
