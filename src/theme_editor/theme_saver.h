#pragma once

#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"
#include "shared/component.h"
#include "theme_editor/busy_switch.h"

namespace morpho {

// The theme that the window has loaded.
struct LoadedTheme {
    std::string name;         // its folder's name
    std::string label;        // its title
    std::string workFolder;   // the copy that was edited, with a trailing "\"
    std::string hostThemes;   // where the host keeps its copies of themes, with a trailing "\"
    std::string loadFailure;  // why the work copy is not complete; empty when it is
};

// What a theme is saved as.
struct SaveTarget {
    std::string name;
    std::string title;
    bool applyFlag = false;  // show it in the web too
    bool asNew = false;      // not over the theme it was loaded from
};

enum class SaveOutcome {
    kNotSaved,
    kSaved,
    // The host's copy of the loaded theme, from which its pictures are rebuilt, is now the work
    // copy.
    kSavedOverOriginals,
};

// Saves the loaded theme: over itself or as a new one, as an installed theme of the user and, if
// wanted, in the web. A save that fails or is cut short leaves whole files only: the loaded theme
// and the web's pages are what they were, or what they should be, and what there is of a new theme
// is completed by the next save of its name.
class ThemeSaver {
  public:
    ThemeSaver(const Program& program, Form& form, BusySwitch& busySwitch, Label& lblStatus)
        : program_(program), form_(form), busySwitch_(busySwitch), lblStatus_(lblStatus) {}

    // Saves, after asking whether to overwrite; a read-only theme can only be saved as another one.
    // The window is busy meanwhile. Whatever fails has been told to the person.
    SaveOutcome SaveTheme(const LoadedTheme& theme, const SaveTarget& target);
    // Asks for name and title, then saves as a new theme.
    SaveOutcome SaveThemeAs(const LoadedTheme& theme, bool applyFlag);
    // The error that ended the last save; empty when it went well, or ended with a message that
    // gives its own reason.
    const std::string& Failure() const { return failure_; }

  private:
    struct Run;

    SaveOutcome RunSteps(Run& run);
    void Announce(const Run& run);
    bool FindThemesFolders(Run& run);
    bool FindSource(Run& run);
    SaveOutcome SaveReadOnlyTheme(const Run& run);
    bool MayOverwrite();
    void OpenWebFolder(Run& run);
    bool WriteTheme(Run& run);
    bool AddToWeb(Run& run);
    void UpdateHostThemes(Run& run);
    void ShowInWeb(Run& run);
    void RemoveWebFolder(Run& run);
    void ApplyAgain(Run& run);
    void ApplyToPage(Run& run);
    void RefreshWeb(Run& run);
    SaveOutcome Finish(Run& run);

    void SetStatus(std::string_view text);
    void Log(std::string_view text);
    bool Fail(const std::string& logLine, const std::string& message);
    void TellError(const RunTimeError& error);

    const Program program_;
    Form& form_;
    BusySwitch& busySwitch_;
    Label& lblStatus_;
    std::string saveAsPrompt_{"Enter new theme details:"};
    std::string failure_;
    int line_ = 0;  // of SaveTheme's steps, for the log
};

}  // namespace morpho
