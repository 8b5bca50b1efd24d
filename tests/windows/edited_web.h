#pragma once

#include <string>
#include <vector>

#include "desktop/batch_window.h"
#include "support/temporary_folder.h"

namespace morpho::test {

// What an editing of the sample web leaves: the web, and the user's themes below "user/".
inline Tree EditedTree(Tree web, const Tree& userThemes) {
    for (const auto& [name, bytes] : userThemes)
        web["user/" + name] = bytes;
    return web;
}
// The names of what is not the same in both.
std::vector<std::string> Differences(const Tree& one, const Tree& other);

// The editing that the tests compare: "orrery", recoloured or not, is saved as another theme that
// the web gets.
enum class Recolours { kNothing, kAll };
inline constexpr int kHue = 120;
inline constexpr int kBrightness = 80;
void SaveAsDusk(BatchWindow& window, Recolours recolours);

// It, recoloured, done by the desktop program on a copy of the sample web.
Tree EditedByDesktopProgram();

}  // namespace morpho::test
