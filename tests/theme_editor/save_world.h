#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/fake_platform.h"
#include "theme_editor/frm_save_as.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho::test {

inline const std::string kGlobalThemes = "C:\\Common\\Microsoft Shared\\Themes11\\";
inline const std::string kUserThemes = "C:\\Ann\\Microsoft\\Themes\\";
inline const std::string kHostThemes = "C:\\Cache\\FrontPageTempDir\\mstheme\\";
inline const std::string kWebThemes = "C:\\Web\\_themes\\";
inline const std::string kWork = "C:\\Temp\\Morpho\\coast\\";

// The Theme Morpho window on a web that uses the theme "coast", which is installed for all users.
// "moor" (for all users) and "dunes" (the user's own) are installed too.
struct SaveWorld {
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

    FakePlatform p;
    std::unique_ptr<frmThemeMorpho> window;
    std::vector<std::string> prompts;  // of the Save As dialog, each time it was shown
};

// The bytes of a package file with these members.
std::string Package(const std::vector<std::pair<std::string, std::string>>& members);

}  // namespace morpho::test
