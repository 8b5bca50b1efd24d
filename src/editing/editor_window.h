#pragma once

#include <string>
#include <string_view>

#include "about/frm_about.h"
#include "shared/logged_form.h"

namespace morpho {

// What an editor calls itself.
struct EditorNames {
    // The title of its message boxes, and the application its settings are kept under.
    std::string_view product;
    std::string_view tag;  // of its log
    Editor editor;
};

// The main window of an editor: start-up, settings and placement, which both do alike.
class EditorWindow : public LoggedForm {
  protected:
    EditorWindow(const Program& program, const FormSpec& spec, const EditorNames& names)
        : LoggedForm(program, spec), names_(names) {}

    // Learns the host's version and brings the window to the top. Throws kObjectNotSet when there
    // is no host.
    void ConnectToHost();
    // The version of the host; empty before ConnectToHost.
    const std::string& HostVersion() const { return hostVersion_; }
    void WriteBanner();
    void ShowAboutBox();
    // Shows the About box at the first start only.
    void ShowAboutBoxOnce();
    void OpenHelp();
    // Tells, if that is the error, that the recolouring component is missing.
    void TellMissingColorizer(const RunTimeError& error);

    // Settings "Left", "Top", "Width", "Height" and "State". A state that is missing or unknown is
    // the normal one.
    void RestorePlacement();
    void SavePlacement();
    // Raises a smaller size to `minimum`. A maximized window smaller than `maximized` is first
    // returned to the normal state, and the person is told.
    void KeepMinimumSize(Size minimum, Size maximized);

    Answer Ask(std::string_view question, int buttons);
    void TellFailure(std::string_view text);

    std::string Setting(std::string_view key, std::string_view fallback) const;
    int SettingNumber(std::string_view key, int fallback) const;
    void SaveSettingText(std::string_view key, std::string_view value);

  private:
    EditorNames names_;
    std::string hostVersion_;
};

}  // namespace morpho
