#pragma once

#include "theme_editor/frm_save_as.h"
#include "theme_editor/theme_world.h"

namespace morpho::test {

// The Theme Morpho window on a web that uses the theme "coast", which is installed for all users.
// "moor" (for all users) and "dunes" (the user's own) are installed too.
struct SaveWorld : ThemeWorld {
    SaveWorld();

    // Opens the window, and recolours what the theme has.
    void OpenAndRecolour();
    // Lets the person fill in the Save As dialog and press Save; its suggestions are remembered.
    void PersonSavesAs(const std::string& name, const std::string& title, bool apply);
    void InstallTheme(const std::string& themesFolder, const std::string& name,
                      const std::string& title, const std::string& readOnly = "false");
    // All files but those of the temporary folder, by path.
    std::map<std::string, std::string> Tree() const;
    bool IsUsable() const;

    Lines saveAsPrompts;  // of the dialog, each time it was shown
};

// The bytes of a package file with these members.
std::string Package(const std::vector<std::pair<std::string, std::string>>& members);

}  // namespace morpho::test
