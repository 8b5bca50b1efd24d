#pragma once

#include <filesystem>

#include "program/request.h"

namespace morpho {

class Form;

// `morpho theme`: opens the window and returns when it is closed. Throws CommandError.
void ShowThemeWindow(const ThemeRequest& request);

// Draws a loaded form, as its window would show it, into a PNG file. Throws CommandError.
void DrawWindow(Form& form, const std::filesystem::path& picture);

}  // namespace morpho
