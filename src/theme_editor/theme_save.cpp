#include "theme_editor/theme_save.h"

#include <cstdio>

#include "frontpage/mod_fpole.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"
#include "theme_editor/description_files.h"
#include "theme_editor/theme_product.h"

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

// Tells that the save changed the user's copy of the theme, and not the web.
std::string UserCopyOnly(const std::string& theme, bool isThemeOfWeb) {
    return (isThemeOfWeb ? "The web shows \"" + theme + "\" without the changes"
                         : "The web does not use \"" + theme + "\"") +
           ": it is saved among your own themes only.";
}

}  // namespace

SaveOutcome ThemeSave::Run() {
    try {
        RunSteps();
    } catch (const std::exception& error) {
        Failed(AsRunTimeError(error));
    }
    End();
    if (!message_.text.empty()) form_.MsgBox(message_.text, kOkOnly | message_.icon, kThemeProduct);
    return outcome_;
}

void ThemeSave::RunSteps() {
    constexpr bool (ThemeSave::*kSteps[])() = {
        &ThemeSave::Announce,       &ThemeSave::FindThemesFolders, &ThemeSave::FindSource,
        &ThemeSave::MayWriteTarget, &ThemeSave::OpenWebFolder,     &ThemeSave::WriteTheme,
        &ThemeSave::ShowInWeb,      &ThemeSave::RefreshWeb,        &ThemeSave::Finish};
    for (const auto step : kSteps) {
        ++step_;
        if (!(this->*step)()) return;
    }
}

bool ThemeSave::Announce() {
    Log("Saving theme \"" + target_.title + "\" (" + target_.name + ")...");
    Log("Source theme: " + theme_.name);
    return true;
}

bool ThemeSave::FindThemesFolders() {
    const std::string text = "Unable to determine global themes folder path";
    globalThemes_ = GetThemesFolder(program_, true);
    if (globalThemes_.empty()) return Refuse(text, text + ".");
    const std::string userText = "Unable to determine user themes folder path";
    userThemes_ = GetThemesFolder(program_, false);
    return !userThemes_.empty() || Refuse(userText, userText + ".");
}

bool ThemeSave::FindSource() {
    for (const std::string& themes : {globalThemes_, userThemes_}) {
        const std::string folder = WithSeparator(themes) + theme_.name;
        if (!FolderExists(program_.platform.files, folder)) continue;
        source_ = {folder, theme_.name};
        Log("Source theme found in " + folder);
        return true;
    }
    return Refuse("Unable to locate source theme", "Unable to locate source theme");
}

bool ThemeSave::MayWriteTarget() {
    if (target_.asNew) return true;
    if (!IsReadOnlyTheme(program_.platform, source_.Inf()))
        return form_.MsgBox(kOverwriteQuestion, kYesNo | kQuestionIcon, kThemeProduct) ==
               Answer::kYes;
    Log("Source theme is read-only. Needs to be saved as some other theme.");
    outcome_ = saveAsAnother_();
    return false;
}

bool ThemeSave::OpenWebFolder() {
    web_ = program_.component.application->ActiveWeb();
    if (!web_) return true;
    transaction_ = program_.component.application->BeginSave(target_.name, theme_.name);
    if (transaction_ && target_.asNew && !IsNameFree()) return false;
    SetStatus("Creating theme folder...");
    webFolder_.emplace(program_, *web_, target_.name);
    webFolder_->FindOrCreate();
    return true;
}

// Another program may have saved a theme of this name since the dialog looked. From the beginning
// of the transaction on none can.
bool ThemeSave::IsNameFree() {
    const FileSystem& files = program_.platform.files;
    const bool isTaken = FolderExists(files, WithSeparator(globalThemes_) + target_.name) ||
                         (FolderExists(files, WithSeparator(userThemes_) + target_.name) &&
                          !IsHalfInstalled(files, userThemes_, target_.name));
    return !isTaken ||
           Refuse("Theme name is in use: " + target_.name,
                  "This theme name is being used by another theme. Please specify another name.");
}

bool ThemeSave::WriteTheme() {
    if (!webFolder_ || !webFolder_->Exists()) {
        Log("Unable to locate/create theme folder on the web.");
        // Nothing has been written, so "Theme saved." would be wrong.
        throw RunTimeError(ErrorNumber::kObjectNotSet, "The web has no folder for the theme");
    }
    // A save as a new theme gives the work copy's description the new theme's name and leaves it
    // so, whether or not the save went well.
    RestoreDescription(program_.platform, theme_.workFolder, theme_.hostThemes + theme_.name + '\\',
                       theme_.name);
    if (target_.asNew && !AddToWeb()) return false;
    if (target_.applyFlag) UpdateHostThemes();
    installation_.emplace(program_.platform, userThemes_, target_.name, WorkCopies("#user"));
    installation_->Install(source_, target_.title, theme_.workFolder);
    return true;
}

bool ThemeSave::AddToWeb() {
    const std::string& work = theme_.workFolder;
    RenameDescription(program_.platform, work, theme_.name, target_.name, target_.title);

    Log("Copying theme files to the web...");
    webFolder_->AddFilesOf(
        work, [this](const std::string& file) { SetStatus("Copying " + file + "..."); });

    Log("Marking the new theme as fresh...");
    SetStatus("Refreshing theme...");
    if (FPMakeThemeFresh(program_, target_.name, web_->Url(), true, true) == 0) {
        // As the message says, the theme stays in the web.
        if (transaction_) transaction_->Commit();
        webFolder_->Keep();
        message_ = {
            "New theme was added to the active web but could not be downloaded automatically.",
            kInformationIcon};
        return false;
    }
    Log("Updating local theme files...");
    SetStatus("Refreshing theme...");
    return true;
}

void ThemeSave::UpdateHostThemes() {
    const std::string hostTheme = theme_.hostThemes + target_.name;
    hostThemeBackup_.emplace(program_.platform.files, hostTheme, WorkCopies("#host"));
    program_.platform.files.CopyFolder(WorkCopies(""), hostTheme);
}

// A folder beside the work copy. No theme's work copy has this name, because "#" is refused in
// names.
std::string ThemeSave::WorkCopies(std::string_view suffix) const {
    const std::string& work = theme_.workFolder;
    return work.substr(0, work.size() - 1) + std::string(suffix);
}

bool ThemeSave::ShowInWeb() {
    if (target_.asNew) {
        target_.applyFlag ? ApplyNewTheme() : RemoveWebFolder();
        return true;
    }
    const bool isThemeOfWeb =
        EqualIgnoringCase(web_->ThemeProperties(kThemeNameProperty), target_.name);
    if (isThemeOfWeb && target_.applyFlag) {
        ShowChanges();
    } else {
        outcome_.notice = UserCopyOnly(target_.name, isThemeOfWeb);
    }
    return true;
}

void ThemeSave::ApplyNewTheme() {
    Log("SaveAs: Applying theme to web...");
    SetStatus("Applying theme to web...");
    // Without a transaction pages may need the new theme from now on.
    if (!transaction_) Keep();
    web_->ApplyTheme(target_.name);
}

void ThemeSave::RemoveWebFolder() {
    // A folder that stood there before is the web's own: its pages may use it.
    if (!webFolder_->WasCreatedHere()) return;
    Log("Removing web theme folder...");
    SetStatus("Deleting web folder...");
    webFolder_->Delete();
}

void ThemeSave::ShowChanges() {
    Log("Save: Applying theme to web...");
    SetStatus("Applying theme to web...");
    web_->ApplyTheme(target_.name);
    Log("Save: Applying theme to page...");
    SetStatus("Applying theme to page...");
    ApplyToPage();
}

void ThemeSave::ApplyToPage() {
    const auto window = web_->ActiveWebWindow();
    for (int i = 0; window && i < window->PageWindowCount(); ++i) {
        const auto page = window->PageWindowAt(i);
        if (!EqualIgnoringCase(page->ThemeProperties(kThemeNameProperty), target_.name)) continue;
        page->ApplyTheme(target_.name);
        Log(page->Location() + "Save: Applying theme to page...");
        return;
    }
}

bool ThemeSave::RefreshWeb() {
    Log("Refreshing web...");
    SetStatus("Refreshing web...");
    web_->Refresh();
    Log("Recalculating hyperlinks...");
    SetStatus("Recalculating links...");
    web_->RecalcHyperlinks();
    if (transaction_) transaction_->Commit();
    Keep();
    return true;
}

bool ThemeSave::Finish() {
    SetStatus("");
    Log("Theme saved.");
    form_.SetCaption(kThemeProduct);
    outcome_.saved = true;
    outcome_.overOriginals = target_.applyFlag && EqualIgnoringCase(target_.name, theme_.name);
    if (target_.asNew && target_.applyFlag) outcome_.added = {target_.name, target_.title};
    message_ = {outcome_.notice, kInformationIcon};
    return true;
}

void ThemeSave::Keep() {
    webFolder_->Keep();
    if (hostThemeBackup_) hostThemeBackup_->KeepChanges();
    installation_->Keep();
}

void ThemeSave::Failed(const RunTimeError& error) {
    outcome_ = {.failure = error.what()};
    message_ = {"Error occured while saving theme.", kCriticalIcon};
    try {
        Log(Hexadecimal(error.Number()) + " (" + error.what() + ") occured on line " +
            std::to_string(step_) + " in function SaveTheme");
    } catch (const std::exception&) {
        // The log may be what failed.
    }
}

// Every save ends here, whether it succeeded or not. What was not kept is rolled back, the last
// change first, and before a message is shown: while it is open, other programs can save.
void ThemeSave::End() {
    installation_.reset();
    hostThemeBackup_.reset();
    webFolder_.reset();
    transaction_.reset();
    if (!outcome_.saved) SetStatus("");
}

void ThemeSave::SetStatus(std::string_view text) {
    lblStatus_.SetCaption(text);
    lblStatus_.Refresh();
}

void ThemeSave::Log(std::string_view text) {
    WriteLog(program_, text);
}

bool ThemeSave::Refuse(const std::string& logLine, const std::string& message) {
    Log(logLine);
    message_ = {message, kCriticalIcon};
    return false;
}

}  // namespace morpho
