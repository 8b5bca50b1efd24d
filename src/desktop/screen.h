#pragma once

#include <filesystem>

#include "desktop/request.h"

namespace morpho {

class Form;

// The windows of the desktop program, with the toolkit of the system. Each Show opens one and
// returns when it is closed; it throws RunTimeError or CommandError where it cannot.
class Screen {
  public:
    virtual ~Screen() = default;

    virtual void ShowWeb(const WebRequest& request) = 0;
    virtual void ShowTheme(const ThemeRequest& request) = 0;
    virtual void ShowImage(const ImageRequest& request) = 0;
    // Draws a loaded form, as its window would show it, into a PNG file. Throws CommandError.
    virtual void Draw(Form& form, const std::filesystem::path& picture) = 0;
};

}  // namespace morpho
