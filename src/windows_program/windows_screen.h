#pragma once

#include "desktop/screen.h"
#include "windows_program/windows_desktop.h"

namespace morpho {

// The windows with Windows' own controls.
class WindowsScreen : public Screen {
  public:
    // `system` must outlive it.
    explicit WindowsScreen(WindowsDesktop& system) : system_(system) {}

    // The window on a whole web is Linux's alone: this opens the theme editor on the web, or asks
    // for one where none is named.
    void ShowWeb(const WebRequest& request) override;
    void ShowTheme(const ThemeRequest& request) override;
    void ShowImage(const ImageRequest& request) override;
    void Draw(Form& form, const std::filesystem::path& picture) override;

  private:
    WindowsDesktop& system_;
};

}  // namespace morpho
