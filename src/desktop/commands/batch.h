#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "desktop/commands/batch_window.h"
#include "desktop/host/desktop_platform.h"
#include "forms/headless_toolkit.h"
#include "resources/embedded_resources.h"
#include "shared/component.h"

namespace morpho {

// One run of the program without a screen, on one web.
class Batch {
  public:
    // With a theme's name only that theme is made ready. Throws CommandError when the web cannot be
    // opened.
    Batch(const std::filesystem::path& web, const std::string& onlyTheme);

    // All themes of the web.
    const std::vector<Theme>& Themes() { return desktop_.FrontPage().Opened()->themes; }
    // What could not be taken from them, a sentence a line.
    std::string Warnings();
    // The window with the theme of this name (without regard to case). Throws CommandError.
    BatchWindow& OpenTheme(const std::string& name);

  private:
    HeadlessToolkit toolkit_;
    EmbeddedResources resources_;
    DesktopPlatform desktop_;
    Component component_;
    Program program_{desktop_.Parts(), component_};
    std::unique_ptr<BatchWindow> window_;
};

}  // namespace morpho
