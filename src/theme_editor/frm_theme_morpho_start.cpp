// How the Theme Morpho window starts: settings, banner, folders, themes, colour band.

#include "about/frm_quick_reference.h"
#include "frontpage/environment_discovery.h"
#include "frontpage/mod_fpole.h"
#include "platform/platform.h"
#include "shared/log.h"
#include "shared/settings.h"
#include "theme_editor/frm_theme_morpho.h"
#include "theme_editor/theme_discovery.h"

namespace morpho {

namespace {

constexpr std::string_view kNoThemes =
    "You must open one or more pages in FrontPage that use theme(s) you wish to edit. If you have "
    "already "
    "opened pages, you may have to save them to get the themes to appear in the list.";
constexpr std::string_view kNoColorizer =
    "A required component of Morpho, Colorizer, cannot be initialised.\r\nMorpho product will not "
    "work.";

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
    if (Setting("Splash", "1") == "1") {
        ShowAboutBox();
        SaveSettingText("Splash", "0");
    }
    RestorePlacement();
    FindFolders();
    cmdRedo.SetEnabled(false);
    cmdUndo.SetEnabled(false);
    ListThemes();
    if (cmbThemeLabel.ListCount() == 0) {
        WriteLog("No themes were opened by FP");
        MsgBox(kNoThemes, kOkOnly | kCriticalIcon, kThemeProduct);
        StartUpFailed(nullptr);
        return;
    }
    OpenFirstTheme();
    loading_ = false;
    WriteLog("TM loaded");
}

void frmThemeMorpho::ConnectToHost() {
    const std::shared_ptr<Application>& application = TheComponent().application;
    if (!application) throw RunTimeError(ErrorNumber::kObjectNotSet, "FrontPage is not there");
    version_ = application->Version();
    SetFrontPageProgIDs(TheComponent(), version_);
    BringToTop();
}

void frmThemeMorpho::WriteBanner() {
    StartLog(TheProgram(), "TM", kThemeProduct);
    WriteLog("==============================");
    WriteLog("TM started");
    WriteLog("Morpho version - " + GetVersionText(ThePlatform(), true));
    WriteLog("OS info - " + GetOSInfo(ThePlatform()));
    WriteLog(GetFrontPageInfo(TheProgram()));
}

void frmThemeMorpho::RestorePlacement() {
    const Rectangle now = Bounds();
    SetBounds({SettingNumber("Left", now.left), SettingNumber("Top", now.top),
               SettingNumber("Width", now.width), SettingNumber("Height", now.height)});
    const int state = SettingNumber("State", 0);
    const bool known = state >= static_cast<int>(WindowState::kNormal) &&
                       state <= static_cast<int>(WindowState::kMaximized);
    SetState(known ? static_cast<WindowState>(state) : WindowState::kNormal);
}

void frmThemeMorpho::FindFolders() {
    tempPath_ = GetTempPath(ThePlatform());
    WriteLog("Temp path: " + tempPath_);
    fpThemeTempPath_ = FindThemeTempPath(TheProgram(), version_);
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
    if (error != nullptr && error->Number() == ErrorNumber::kCannotCreateComponent) {
        MsgBox(kNoColorizer, kOkOnly | kCriticalIcon, kThemeProduct);
    }
}

void frmThemeMorpho::ShowQuickReference() {
    if (SettingNumber("QuickReference", 1) != 1) return;
    frmQuickReference guide(TheProgram());
    guide.ShowModal();
    if (guide.chkDontShow.Value()) SaveSettingText("QuickReference", "0");
}

}  // namespace morpho
