#include "theme_editor/theme_saver.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

#include "frontpage/mod_fpole.h"
#include "platform/file_system.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"
#include "theme_editor/description_files.h"
#include "theme_editor/folder_backup.h"
#include "theme_editor/frm_save_as.h"
#include "theme_editor/installed_theme.h"
#include "theme_editor/product.h"
#include "theme_editor/theme_installation.h"
#include "theme_editor/web_theme_folder.h"

namespace morpho {

namespace {

constexpr std::string_view kOverwriteQuestion =
    "We strongly recommend that you save your theme using the\r\n"
    "Save As... button. Overwriting a theme used on another web\r\n"
    " may inadvertently change its color as well.\r\n"
    "\r\n"
    "If you still save this theme and your changes do not appear in\r\n"
    "FrontPage, please restart FrontPage and bring up the web\r\n"
    "again to see your theme changes.\r\n"
    "\r\n"
    "Are you sure you want to overwrite the current theme ?";

std::string Hexadecimal(ErrorNumber number) {
    char text[16];
    std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(number));
    return text;
}

}  // namespace

// One save. What it has begun and not finished is undone when it ends, in the order from the last
// member to the first.
struct ThemeSaver::Run {
    const LoadedTheme& theme;
    const SaveTarget& target;
    std::string globalThemes = {};
    std::string userThemes = {};
    InstalledTheme source = {};
    std::unique_ptr<Web> web = nullptr;
    std::optional<WebThemeFolder> webFolder = {};
    std::optional<FolderBackup> hostThemeBackup = {};
    std::optional<ThemeInstallation> installation = {};

    std::string HostTheme() const { return theme.hostThemes + target.name; }
    void Keep() {
        webFolder->Keep();
        if (hostThemeBackup) hostThemeBackup->KeepChanges();
        installation->Keep();
    }
};

SaveOutcome ThemeSaver::SaveThemeAs(const LoadedTheme& theme, bool applyFlag) {
    failure_.clear();
    SaveTarget target{theme.name, theme.label, applyFlag, true};
    const std::string prompt = std::exchange(saveAsPrompt_, "\r\nEnter new theme details:");
    frmSaveAs dialog(program_);
    if (dialog.RunModal(prompt, target.name, target.title, target.applyFlag))
        return SaveTheme(theme, target);
    Log("Save as operation cancelled");
    return SaveOutcome::kNotSaved;
}

SaveOutcome ThemeSaver::SaveTheme(const LoadedTheme& theme, const SaveTarget& target) {
    const BusySwitch::Guard busy(busySwitch_);
    SaveOutcome outcome = SaveOutcome::kNotSaved;
    failure_.clear();
    try {
        Run run{theme, target};
        outcome = RunSteps(run);
    } catch (const RunTimeError& error) {
        TellError(error);
    }
    if (outcome == SaveOutcome::kNotSaved) SetStatus("");
    return outcome;
}

SaveOutcome ThemeSaver::RunSteps(Run& run) {
    line_ = 1;
    Announce(run);
    line_ = 2;
    if (!FindThemesFolders(run)) return SaveOutcome::kNotSaved;
    line_ = 3;
    if (!FindSource(run)) return SaveOutcome::kNotSaved;
    line_ = 4;
    if (!run.target.asNew) {
        if (IsReadOnlyTheme(program_.platform, run.source.Inf())) return SaveReadOnlyTheme(run);
        if (!MayOverwrite()) return SaveOutcome::kNotSaved;
    }
    line_ = 5;
    OpenWebFolder(run);
    line_ = 6;
    if (!WriteTheme(run)) return SaveOutcome::kNotSaved;
    line_ = 7;
    ShowInWeb(run);
    line_ = 8;
    RefreshWeb(run);
    line_ = 9;
    return Finish(run);
}

void ThemeSaver::Announce(const Run& run) {
    Log("Saving theme \"" + run.target.title + "\" (" + run.target.name + ")...");
    Log("Source theme: " + run.theme.name);
    if (!run.theme.loadFailure.empty())
        throw RunTimeError(ErrorNumber::kObjectNotSet,
                           "The theme was not loaded: " + run.theme.loadFailure);
}

bool ThemeSaver::FindThemesFolders(Run& run) {
    const std::string text = "Unable to determine global themes folder path";
    run.globalThemes = GetThemesFolder(program_, true);
    if (run.globalThemes.empty()) return Fail(text, text + ".");
    const std::string userText = "Unable to determine user themes folder path";
    run.userThemes = GetThemesFolder(program_, false);
    return !run.userThemes.empty() || Fail(userText, userText + ".");
}

bool ThemeSaver::FindSource(Run& run) {
    for (const std::string& themes : {run.globalThemes, run.userThemes}) {
        const std::string folder = WithSeparator(themes) + run.theme.name;
        if (!FolderExists(program_.platform.files, folder)) continue;
        run.source = {folder, run.theme.name};
        Log("Source theme found in " + folder);
        return true;
    }
    return Fail("Unable to locate source theme", "Unable to locate source theme");
}

SaveOutcome ThemeSaver::SaveReadOnlyTheme(const Run& run) {
    Log("Source theme is read-only. Needs to be saved as some other theme.");
    saveAsPrompt_ = "This theme is read only. Please enter new theme details to save as:";
    return SaveThemeAs(run.theme, run.target.applyFlag);
}

bool ThemeSaver::MayOverwrite() {
    return form_.MsgBox(kOverwriteQuestion, kYesNo | kQuestionIcon, kThemeProduct) == Answer::kYes;
}

void ThemeSaver::OpenWebFolder(Run& run) {
    run.web = program_.component.application->ActiveWeb();
    if (!run.web) return;
    SetStatus("Creating theme folder...");
    run.webFolder.emplace(program_, *run.web, run.target.name);
    run.webFolder->FindOrCreate();
}

bool ThemeSaver::WriteTheme(Run& run) {
    if (!run.webFolder || !run.webFolder->Exists()) {
        Log("Unable to locate/create theme folder on the web.");
        // Nothing has been written, and the person must not think otherwise.
        throw RunTimeError(ErrorNumber::kObjectNotSet, "The web has no folder for the theme");
    }
    // A save as a new theme gives the work copy's description the new theme's name and leaves it
    // so, whether or not the save went well.
    RestoreDescription(program_.platform, run.theme.workFolder,
                       run.theme.hostThemes + run.theme.name + '\\', run.theme.name);
    if (run.target.asNew && !AddToWeb(run)) return false;
    if (run.target.applyFlag) UpdateHostThemes(run);
    run.installation.emplace(program_.platform, run.userThemes, run.target.name);
    run.installation->Install(run.source, run.target.title, run.theme.workFolder);
    return true;
}

bool ThemeSaver::AddToWeb(Run& run) {
    const std::string& work = run.theme.workFolder;
    RenameDescription(program_.platform, work, run.theme.name, run.target.name, run.target.title);

    Log("Copying theme files to the web...");
    run.webFolder->AddFilesOf(
        work, [this](const std::string& file) { SetStatus("Copying " + file + "..."); });

    Log("Marking the new theme as fresh...");
    SetStatus("Refreshing theme...");
    if (FPMakeThemeFresh(program_, run.target.name, run.web->Url(), true, true) == 0) {
        run.webFolder->Keep();  // as the message says
        form_.MsgBox(
            "New theme was added to the active web but could not be downloaded automatically.",
            kOkOnly | kInformationIcon, kThemeProduct);
        return false;
    }
    Log("Updating local theme files...");
    SetStatus("Refreshing theme...");
    return true;
}

void ThemeSaver::UpdateHostThemes(Run& run) {
    std::string work = run.theme.workFolder;
    work.pop_back();
    run.hostThemeBackup.emplace(program_.platform.files, run.HostTheme());
    program_.platform.files.CopyFolder(work, run.HostTheme());
}

void ThemeSaver::ShowInWeb(Run& run) {
    if (!run.target.applyFlag) {
        if (run.target.asNew) RemoveWebFolder(run);
    } else if (run.target.asNew) {
        Log("SaveAs: Applying theme to web...");
        SetStatus("Applying theme to web...");
        // From now on pages may need the new theme.
        run.Keep();
        run.web->ApplyTheme(run.target.name);
    } else if (EqualIgnoringCase(run.web->ThemeProperties(kThemeNameProperty), run.target.name)) {
        ApplyAgain(run);
    }
}

void ThemeSaver::RemoveWebFolder(Run& run) {
    // A folder that stood there before is the web's own: its pages may use it.
    if (!run.webFolder->WasCreatedHere()) return;
    Log("Removing web theme folder...");
    SetStatus("Deleting web folder...");
    run.webFolder->Delete();
}

void ThemeSaver::ApplyAgain(Run& run) {
    Log("Save: Applying theme to web...");
    SetStatus("Applying theme to web...");
    run.web->ApplyTheme(run.target.name);
    Log("Save: Applying theme to page...");
    SetStatus("Applying theme to page...");
    ApplyToPage(run);
}

void ThemeSaver::ApplyToPage(Run& run) {
    const auto window = run.web->ActiveWebWindow();
    for (int i = 0; window && i < window->PageWindowCount(); ++i) {
        const auto page = window->PageWindowAt(i);
        if (!EqualIgnoringCase(page->ThemeProperties(kThemeNameProperty), run.target.name))
            continue;
        page->ApplyTheme(run.target.name);
        Log(page->Location() + "Save: Applying theme to page...");
        return;
    }
}

void ThemeSaver::RefreshWeb(Run& run) {
    Log("Refreshing web...");
    SetStatus("Refreshing web...");
    run.web->Refresh();
    Log("Recalculating hyperlinks...");
    SetStatus("Recalculating links...");
    run.web->RecalcHyperlinks();
}

SaveOutcome ThemeSaver::Finish(Run& run) {
    SetStatus("");
    Log("Theme saved.");
    form_.SetCaption(kThemeProduct);
    run.Keep();
    const bool overOriginals =
        run.target.applyFlag && EqualIgnoringCase(run.target.name, run.theme.name);
    return overOriginals ? SaveOutcome::kSavedOverOriginals : SaveOutcome::kSaved;
}

void ThemeSaver::SetStatus(std::string_view text) {
    lblStatus_.SetCaption(text);
    lblStatus_.Refresh();
}

void ThemeSaver::Log(std::string_view text) {
    WriteLog(program_, text);
}

bool ThemeSaver::Fail(const std::string& logLine, const std::string& message) {
    Log(logLine);
    form_.MsgBox(message, kOkOnly | kCriticalIcon, kThemeProduct);
    return false;
}

void ThemeSaver::TellError(const RunTimeError& error) {
    failure_ = error.what();
    try {
        Log(Hexadecimal(error.Number()) + " (" + error.what() + ") occured on line " +
            std::to_string(line_) + " in function SaveTheme");
    } catch (const RunTimeError&) {
        // The log may be what failed.
    }
    form_.MsgBox("Error occured while saving theme.", kOkOnly | kCriticalIcon, kThemeProduct);
}

}  // namespace morpho
