// How the Theme Morpho window starts: settings, banner, folders, themes, colour band.

#include "about/frm_quick_reference.h"
#include "frontpage/environment_discovery.h"
#include "platform/platform.h"
#include "theme_editor/frm_theme_morpho.h"
#include "theme_editor/theme_discovery.h"

namespace morpho {

namespace {

constexpr std::string_view kNoThemes =
    "You must open one or more pages in FrontPage that use theme(s) you wish to edit. If you have "
    "already "
    "opened pages, you may have to save them to get the themes to appear in the list.";

}  // namespace

void frmThemeMorpho::Form_Load() {
    try {
        StartUp();
    } catch (const std::exception& error) {
        const RunTimeError known = AsRunTimeError(error);
        StartUpFailed(&known);
    }
}

void frmThemeMorpho::StartUp() {
    ConnectToHost();
    timer.SetEnabled(false);
    firstPaint_ = true;
    busySwitch_.SetBusy(false);
    WriteBanner();
    loading_ = true;
    ShowAboutBoxOnce();
    RestorePlacement();
    FindFolders();
    cmdRedo.SetEnabled(false);
    cmdUndo.SetEnabled(false);
    ListThemes();
    if (cmbThemeLabel.ListCount() == 0) {
        WriteLog("No themes were opened by FP");
        TellFailure(kNoThemes);
        StartUpFailed(nullptr);
        return;
    }
    OpenFirstTheme();
    loading_ = false;
    WriteLog("TM loaded");
}

void frmThemeMorpho::FindFolders() {
    tempPath_ = GetTempPath(ThePlatform());
    WriteLog("Temp path: " + tempPath_);
    fpThemeTempPath_ = FindThemeTempPath(TheProgram(), HostVersion());
    WriteLog("FP Temp path: " + fpThemeTempPath_);
}

void frmThemeMorpho::ListThemes() {
    cmbThemeName.Clear();
    for (const Theme& theme : ListOpenedThemes(TheProgram(), fpThemeTempPath_)) {
        cmbThemeName.AddItem(theme.name);
        cmbThemeLabel.AddItem(theme.label);
    }
}

void frmThemeMorpho::OpenFirstTheme() {
    cmbThemeLabel.SetListIndex(0);
    band_.Open(*this, tempPath_);
    UpdateColourBand();
}

void frmThemeMorpho::StartUpFailed(const RunTimeError* error) {
    EnableThemeControls(false);
    cmbThemeLabel.SetEnabled(false);
    wbbImagePreview.SetEnabled(false);
    WriteLog("Error occured while loading TM");  // only now: the log may be what failed
    if (error != nullptr) TellMissingColorizer(*error);
}

void frmThemeMorpho::ShowQuickReference() {
    if (SettingNumber("QuickReference", 1) != 1) return;
    frmQuickReference guide(TheProgram());
    guide.ShowModal();
    if (guide.chkDontShow.Value()) SaveSettingText("QuickReference", "0");
}

}  // namespace morpho
