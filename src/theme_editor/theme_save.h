#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"
#include "platform/front_page.h"
#include "shared/component.h"
#include "theme_editor/folder_backup.h"
#include "theme_editor/installed_theme.h"
#include "theme_editor/theme_installation.h"
#include "theme_editor/web_theme_folder.h"

namespace morpho {

// The theme that the window has loaded.
struct LoadedTheme {
    std::string name;        // its folder's name
    std::string label;       // its title
    std::string workFolder;  // the copy that was edited, with a trailing "\"
    std::string hostThemes;  // where the host keeps its copies of themes, with a trailing "\"
};

// What a theme is saved as.
struct SaveTarget {
    std::string name;
    std::string title;
    bool applyFlag = false;  // apply it to the web, too
    bool asNew = false;      // not over the theme it was loaded from
};

// How a save ended. The person has been told all of it.
struct SaveOutcome {
    bool saved = false;
    // The host's copy of the loaded theme, from which its pictures are rebuilt, is now the work
    // copy.
    bool overOriginals = false;
    // A new theme that the web has now.
    std::optional<Theme> added = {};
    // What the person must know of a save that went well.
    std::string notice = {};
    // The error that ended the save; empty when it went well, or ended with a message that gives
    // its own reason.
    std::string failure = {};
};

// One save of a theme, step by step. A save that fails restores what was there before. If the
// program is killed, every file is whole: the old one or the new one. The next save of the same
// name completes a new theme that was left incomplete.
class ThemeSave {
  public:
    // Asks for another name and saves under that, which is all that a read-only theme allows.
    using SaveAsAnother = std::function<SaveOutcome()>;

    ThemeSave(const Program& program, Form& form, Label& lblStatus, const LoadedTheme& theme,
              const SaveTarget& target, SaveAsAnother saveAsAnother)
        : program_(program),
          form_(form),
          lblStatus_(lblStatus),
          theme_(theme),
          target_(target),
          saveAsAnother_(std::move(saveAsAnother)) {}

    // Runs it to its end. To be called once.
    SaveOutcome Run();

  private:
    // The steps in their order. A step that returns false ends the save.
    void RunSteps();
    bool Announce();
    bool FindThemesFolders();
    bool FindSource();
    bool MayWriteTarget();
    bool OpenWebFolder();
    bool WriteTheme();
    bool ShowInWeb();
    bool RefreshWeb();
    bool Finish();

    bool IsNameFree();
    bool AddToWeb();
    void UpdateHostThemes();
    std::string WorkCopies(std::string_view suffix) const;
    void ApplyNewTheme();
    void RemoveWebFolder();
    void ShowChanges();
    void ApplyToPage();

    void Keep();
    void Failed(const RunTimeError& error);
    void End();

    void SetStatus(std::string_view text);
    void Log(std::string_view text);
    // Ends the save with a log line and a message. Always false.
    bool Refuse(const std::string& logLine, const std::string& message);

    const Program program_;
    Form& form_;
    Label& lblStatus_;
    const LoadedTheme theme_;
    const SaveTarget target_;
    const SaveAsAnother saveAsAnother_;
    SaveOutcome outcome_;
    int step_ = 0;  // the one that runs, from 1
    struct {
        std::string text;
        int icon = kCriticalIcon;
    } message_;  // for the person, shown at the end

    std::string globalThemes_;
    std::string userThemes_;
    InstalledTheme source_;
    std::unique_ptr<Web> web_;
    std::unique_ptr<SaveTransaction> transaction_;  // null where the host has none
    std::optional<WebThemeFolder> webFolder_;
    std::optional<FolderBackup> hostThemeBackup_;
    std::optional<ThemeInstallation> installation_;
};

}  // namespace morpho
