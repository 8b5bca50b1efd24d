#include "theme_editor/frm_theme_morpho.h"

#include "frontpage/mod_fpole.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/resources.h"
#include "resources/resource_ids.h"
#include "shared/mod_shared_code.h"

namespace morpho {

namespace {

constexpr Size kDesignSize{14400, 9900};

}  // namespace

frmThemeMorpho::frmThemeMorpho(const Program& program)
    : EditorWindow(program,
                   {"frmThemeMorpho", kThemeProduct, kDesignSize, BorderStyle::kSizable,
                    kMinimumSize, StartPosition::kCenterScreen},
                   {kThemeProduct, "TM", Editor::kTheme}),
      band_(program, imgBand, picBand),
      renderer_(program, elements_, history_),
      preview_(program, *this, elements_, wbbImagePreview),
      loader_(program, elements_),
      selection_(
          program, elements_, [this] { return ShowDuplicateNotice(); },
          [this] { SelectionTouched(); }),
      saver_(program, *this, busySwitch_, lblStatus) {
    cmbThemeName.SetVisible(false);
    lstGifNames.SetVisible(false);
    elements_.OnChange([this] { ShowElements(); });
}

void frmThemeMorpho::Form_Paint() {
    if (!firstPaint_) return;
    firstPaint_ = false;
    Form_Resize();
    ShowQuickReference();
}

void frmThemeMorpho::cmbThemeLabel_Click() {
    cmbThemeName.SetListIndex(cmbThemeLabel.ListIndex());
}

void frmThemeMorpho::cmbThemeName_Click() {
    if (revertingCombo_) {
        revertingCombo_ = false;
        return;
    }
    WriteLog("Changing theme combo selection to " + cmbThemeName.Text() + "...");
    if (colorization_.Modified() && !MayLeaveTheme(false)) {
        WriteLog("Theme change/save cancelled. Reverting combo selections...");
        ShowCurrentTheme(currentThemeIndex_);
        return;
    }
    LoadCurrentTheme();
}

void frmThemeMorpho::LoadCurrentTheme() {
    currentThemeIndex_ = cmbThemeName.ListIndex();
    const std::string name = cmbThemeName.Text();
    loadFailure_.clear();
    ShowLoadFailure({});
    renderer_.SetFolders(fpThemeTempPath_ + name + "\\", WorkFolder() + "\\");
    preview_.SetTheme(name, WorkRoot() + "\\Theme.htm");
    try {
        loader_.LoadTheme(name, fpThemeTempPath_ + name, WorkRoot());
        preview_.GeneratePreview(loading_);
        EnableThemeControls(true);
        BeginEditing();
        cmdSelectAll_Click();
    } catch (const std::exception& error) {
        loadFailure_ = AsRunTimeError(error).what();
        LoadFailed(name);
        throw;
    }
}

// The earlier theme's work copy is gone, so it can be neither shown nor saved. No entry is
// current, so that picking the same one again loads it.
void frmThemeMorpho::LoadFailed(const std::string& name) {
    currentThemeIndex_ = kNoEntry;
    ShowCurrentTheme(kNoEntry);
    preview_.ShowNothing();
    EnableThemeControls(false);
    ShowLoadFailure("\"" + name + "\" cannot be loaded: " + loadFailure_);
    elements_.Clear();
    BeginEditing();
}

void frmThemeMorpho::EnableThemeControls(bool enabled) {
    Control* const controls[] = {&lstImageNames,   &cmdSelectAll,  &cmdSelectNone, &cmdSelectActive,
                                 &cmdSelectNormal, &sldBrightness, &sldSaturation, &sldHue,
                                 &cmdApply,        &cmdUndo,       &cmdRedo,       &cmdReset,
                                 &cmdSave,         &cmdSaveAs};
    for (Control* control : controls)
        control->SetEnabled(enabled);
}

void frmThemeMorpho::ShowCurrentTheme(int index) {
    revertingCombo_ = true;
    cmbThemeLabel.SetListIndex(index);
    revertingCombo_ = false;  // if that entry was shown already, no event has reset it
}

void frmThemeMorpho::ShowLoadFailure(const std::string& text) {
    lblStatus.SetCaption(text);
    lblStatus.SetToolTip(text);  // the label is short
}

std::string frmThemeMorpho::WorkFolder() const {
    return WorkRoot() + "\\" + cmbThemeName.Text();
}

bool frmThemeMorpho::MayLeaveTheme(bool closing) {
    const std::string name = cmbThemeName.List(currentThemeIndex_);
    const std::string label = cmbThemeLabel.List(currentThemeIndex_);
    if (!closing) WriteLog("Earlier theme modified: " + name);
    const std::string prompt =
        FormatText(ThePlatform().resources.String(kUnsavedThemePrompt), {label});
    const Answer answer = Ask(prompt, kYesNoCancel);
    if (answer != Answer::kYes) return answer == Answer::kNo;
    if (!closing) WriteLog("Saving modified theme...");
    return SaveLoadedTheme(closing);
}

bool frmThemeMorpho::SaveLoadedTheme(bool applyFlag) {
    const LoadedTheme theme = Loaded();
    return Saved(saver_.SaveTheme(theme, {theme.name, theme.label, applyFlag, false}));
}

LoadedTheme frmThemeMorpho::Loaded() const {
    const std::string& name = cmbThemeName.List(currentThemeIndex_);
    return {name, cmbThemeLabel.List(currentThemeIndex_), WorkRoot() + "\\" + name + "\\",
            fpThemeTempPath_};
}

bool frmThemeMorpho::Saved(SaveOutcome outcome) {
    lastSave_ = std::move(outcome);
    if (!lastSave_.saved) return false;
    // Steps that are part of the originals now must not be replayed on them.
    if (lastSave_.overOriginals) BeginEditing();
    colorization_.SetModified(false);
    const std::optional<Theme>& added = lastSave_.added;
    if (added && cmbThemeName.FindExact(added->name) == kNoEntry) {
        cmbThemeName.AddItem(added->name);
        cmbThemeLabel.AddItem(added->label);
    }
    return true;
}

void frmThemeMorpho::cmdSave_Click() {
    SaveLoadedTheme(true);
}

void frmThemeMorpho::cmdSaveAs_Click() {
    Saved(saver_.SaveThemeAs(Loaded(), false));
}

void frmThemeMorpho::cmdCancel_Click() {
    Unload();
    FPBringToTop(TheProgram());
}

void frmThemeMorpho::btnAbout_Click() {
    ShowAboutBox();
}

void frmThemeMorpho::btnHelp_Click() {
    OpenHelp();
}

void frmThemeMorpho::Form_QueryUnload(bool& cancel, bool /*byUser*/) {
    cancel = true;  // and so it stays if asking or saving fails
    if (busySwitch_.Busy() || (colorization_.Modified() && !MayLeaveTheme(true))) return;
    cancel = false;
    SavePlacement();
    DeleteWorkFolder();
    WriteLog("Unloading TM");
}

void frmThemeMorpho::DeleteWorkFolder() {
    FileSystem& files = ThePlatform().files;
    try {
        if (!tempPath_.empty() && FolderExists(files, WorkRoot())) files.DeleteFolder(WorkRoot());
    } catch (const RunTimeError&) {
        // Closing goes on; a later start deletes what is left in the temporary folder.
        return;
    }
}

}  // namespace morpho
