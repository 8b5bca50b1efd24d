#pragma once

#include "desktop/screen.h"
#include "windows_program/windows_desktop.h"

namespace morpho {

// The windows with Windows' own controls.
class WindowsScreen : public Screen {
  public:
    void ShowWeb(const WebRequest& request) override;
    void ShowTheme(const ThemeRequest& request) override;
    void ShowImage(const ImageRequest& request) override;
    void Draw(Form& form, const std::filesystem::path& picture) override;
};

}  // namespace morpho
