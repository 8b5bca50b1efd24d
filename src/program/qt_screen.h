#pragma once

#include "desktop/screen.h"
#include "program/linux_system.h"

namespace morpho {

// The windows on Qt, which is started when the first is asked for.
class QtScreen : public Screen {
  public:
    // `system` must outlive it.
    explicit QtScreen(LinuxSystem& system) : system_(system) {}

    void ShowWeb(const WebRequest& request) override;
    void ShowTheme(const ThemeRequest& request) override;
    void ShowImage(const ImageRequest& request) override;
    // Needs no screen.
    void Draw(Form& form, const std::filesystem::path& picture) override;

  private:
    LinuxSystem& system_;
};

}  // namespace morpho
