#include "editing/editor_window.h"

#include <algorithm>

#include "frontpage/environment_discovery.h"
#include "frontpage/mod_fpole.h"
#include "platform/environment.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "shared/log.h"
#include "shared/settings.h"

namespace morpho {

namespace {

constexpr std::string_view kNoColorizer =
    "A required component of Morpho, Colorizer, cannot be initialised.\r\nMorpho product will not "
    "work.";
constexpr std::string_view kScreenTooSmall =
    "Minimum window size is more than the screen size.\r\nWindow cannot be maximized.";

bool IsBelow(const Rectangle& bounds, Size minimum) {
    return bounds.width < minimum.width || bounds.height < minimum.height;
}

}  // namespace

void EditorWindow::ConnectToHost() {
    const std::shared_ptr<Application>& application = TheComponent().application;
    if (!application) throw RunTimeError(ErrorNumber::kObjectNotSet, "FrontPage is not there");
    hostVersion_ = application->Version();
    SetFrontPageProgIDs(TheComponent(), hostVersion_);
    BringToTop();
}

void EditorWindow::WriteBanner() {
    StartLog(TheProgram(), names_.tag, names_.product);
    WriteLog("==============================");
    WriteLog(std::string(names_.tag) + " started");
    WriteLog("Morpho version - " + GetVersionText(ThePlatform(), true));
    WriteLog("OS info - " + GetOSInfo(ThePlatform()));
    WriteLog(GetFrontPageInfo(TheProgram()));
}

void EditorWindow::ShowAboutBox() {
    frmAbout about(TheProgram());
    about.ShowAbout(names_.editor, TheComponent().logMode);
    SaveSettingText("Logging", std::to_string(TheComponent().logMode));
}

void EditorWindow::ShowAboutBoxOnce() {
    if (Setting("Splash", "1") != "1") return;
    ShowAboutBox();
    SaveSettingText("Splash", "0");
}

void EditorWindow::OpenHelp() {
    constexpr int kHighestFailure = 31;
    const std::string help = ThePlatform().environment.ModuleFolder() + "\\morpho.hlp";
    if (ThePlatform().shell.WinExec("Winhlp32.exe " + help, 1) > kHighestFailure) return;
    WriteLog("Cannot open " + help);
    TellFailure("The help cannot be opened.");
}

void EditorWindow::TellMissingColorizer(const RunTimeError& error) {
    if (error.Number() == ErrorNumber::kCannotCreateComponent) TellFailure(kNoColorizer);
}

void EditorWindow::RestorePlacement() {
    const Rectangle now = Bounds();
    SetBounds({SettingNumber("Left", now.left), SettingNumber("Top", now.top),
               SettingNumber("Width", now.width), SettingNumber("Height", now.height)});
    const int state = SettingNumber("State", static_cast<int>(WindowState::kNormal));
    const bool known = state >= static_cast<int>(WindowState::kNormal) &&
                       state <= static_cast<int>(WindowState::kMaximized);
    SetState(known ? static_cast<WindowState>(state) : WindowState::kNormal);
}

void EditorWindow::SavePlacement() {
    SaveSettingText("State", std::to_string(static_cast<int>(State())));
    const Rectangle place =
        State() == WindowState::kNormal ? Bounds() : TheToolkit().NormalPlacement(*this);
    SaveSettingText("Left", std::to_string(place.left));
    SaveSettingText("Top", std::to_string(place.top));
    SaveSettingText("Width", std::to_string(place.width));
    SaveSettingText("Height", std::to_string(place.height));
}

void EditorWindow::KeepMinimumSize(Size minimum, Size maximized) {
    if (State() == WindowState::kMaximized && IsBelow(Bounds(), maximized)) {
        TellFailure(kScreenTooSmall);
        SetState(WindowState::kNormal);
    }
    Rectangle bounds = Bounds();
    bounds.width = std::max(bounds.width, minimum.width);
    bounds.height = std::max(bounds.height, minimum.height);
    SetBounds(bounds);
}

Answer EditorWindow::Ask(std::string_view question, int buttons) {
    return MsgBox(question, buttons | kQuestionIcon, names_.product);
}

void EditorWindow::TellFailure(std::string_view text) {
    MsgBox(text, kOkOnly | kCriticalIcon, names_.product);
}

std::string EditorWindow::Setting(std::string_view key, std::string_view fallback) const {
    return GetSetting(ThePlatform(), names_.product, kWindowSection, key, fallback);
}

int EditorWindow::SettingNumber(std::string_view key, int fallback) const {
    return GetSettingNumber(ThePlatform(), names_.product, kWindowSection, key, fallback);
}

void EditorWindow::SaveSettingText(std::string_view key, std::string_view value) {
    SaveSetting(ThePlatform(), names_.product, kWindowSection, key, value);
}

}  // namespace morpho
