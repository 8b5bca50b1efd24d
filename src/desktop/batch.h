#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/batch_window.h"
#include "desktop/desktop_platform.h"
#include "forms/headless_toolkit.h"
#include "resources/embedded_resources.h"
#include "shared/component.h"
#include "shared/memory_clipboard.h"
#include "web_host/web_save_transaction.h"

namespace morpho {

// One run of the program without a screen, on one web.
class Batch {
  public:
    // Only one theme is made ready, or all where its name is empty. `system` must outlive it.
    // Throws RunTimeError when the web cannot be opened.
    Batch(DesktopSystem& system, const std::filesystem::path& web, const std::string& onlyTheme);
    // The same for saving, with these folders.
    Batch(DesktopSystem& system, const std::filesystem::path& web, const std::string& onlyTheme,
          const ProgramFolders& folders);

    // All themes of the web, and the one that the web as a whole uses (empty: none).
    const std::vector<Theme>& Themes() { return desktop_.FrontPage().Session()->Themes(); }
    // What was repaired in them, and what could not be taken from them, a sentence a line.
    std::string Warnings();
    std::string ThemeOfWeb() {
        return desktop_.FrontPage().ActiveWeb()->ThemeProperties(kThemeNameProperty);
    }
    // Whether that would overwrite the web's different theme of this name.
    bool ApplyingReplacesTheme(const std::string& name) {
        return ReplacesThemeOfWeb(*desktop_.FrontPage().Session(), name);
    }
    // Gives the web a theme that it has, or one of the user's own. Throws RunTimeError.
    void ApplyTheme(const std::string& name) { desktop_.FrontPage().ActiveWeb()->ApplyTheme(name); }
    // The same for all pages that have the theme `earlier`, and for no others.
    void ApplyInPlaceOf(const std::string& name, const std::string& earlier) {
        desktop_.FrontPage().ApplyInPlaceOf(name, earlier);
    }
    // Whether pages that name the theme that a save starts from follow to the new one, too.
    void LetPagesFollow(bool follow) { desktop_.FrontPage().Session()->LetPagesFollow(follow); }
    // The pages that kept a theme of their own when a theme was applied, by its name.
    const std::map<std::string, int>& KeptThemes() {
        return desktop_.FrontPage().Session()->KeptThemes();
    }
    // The theme whose interrupted save was completed when the web was opened; empty for none.
    const std::string& CompletedTheme() { return desktop_.FrontPage().Session()->CompletedTheme(); }
    // Whether a page uses the theme that was applied last.
    bool IsThemeShown() { return desktop_.FrontPage().Session()->IsThemeShown(); }
    // What the host could not do with single pages or files, one sentence each.
    const std::vector<std::string>& Reports() {
        return desktop_.FrontPage().Session()->Reports().Sentences();
    }
    // The window with the theme of this name (without regard to case). Throws CommandError.
    BatchWindow& OpenTheme(const std::string& name);

  private:
    DesktopSystem& system_;
    HeadlessToolkit toolkit_;
    EmbeddedResources resources_;
    MemoryClipboard clipboard_;
    DesktopPlatform desktop_;
    Component component_;
    Program program_{desktop_.Parts(), component_};
    std::unique_ptr<BatchWindow> window_;
};

}  // namespace morpho
