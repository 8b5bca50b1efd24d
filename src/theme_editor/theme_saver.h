#pragma once

#include <string>

#include "theme_editor/busy_switch.h"
#include "theme_editor/theme_save.h"

namespace morpho {

// Saves the loaded theme: over itself or as a new one, as an installed theme of the user and, if
// wanted, in the web.
class ThemeSaver {
  public:
    ThemeSaver(const Program& program, Form& form, BusySwitch& busySwitch, Label& lblStatus)
        : program_(program), form_(form), busySwitch_(busySwitch), lblStatus_(lblStatus) {}

    // Saves, after asking whether to overwrite; a read-only theme can only be saved as another one.
    // The window is busy meanwhile. The person is told of every failure.
    SaveOutcome SaveTheme(const LoadedTheme& theme, const SaveTarget& target);
    // Asks for name and title, then saves as a new theme.
    SaveOutcome SaveThemeAs(const LoadedTheme& theme, bool applyFlag);

  private:
    const Program program_;
    Form& form_;
    BusySwitch& busySwitch_;
    Label& lblStatus_;
    std::string saveAsPrompt_{"Enter new theme details:"};
};

}  // namespace morpho
