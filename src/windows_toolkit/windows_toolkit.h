#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/toolkit.h"
#include "windows_system/win32.h"

namespace morpho {

class FormWindow;

// Shows forms as windows of Win32. The program's manifest, or the activation context of the caller,
// asks for version 6 of the common controls. All calls come from one thread.
class WindowsToolkit : public Toolkit {
  public:
    // `owner` answers the window that the outermost form stands on, such as the host's; null: none.
    explicit WindowsToolkit(std::function<HWND()> owner = {});
    ~WindowsToolkit() override;
    WindowsToolkit(const WindowsToolkit&) = delete;
    WindowsToolkit& operator=(const WindowsToolkit&) = delete;

    void PlaceAtStart(Form& form) override;
    void RunModal(Form& form) override;
    Answer ShowMessage(Form* owner, std::string_view text, int flags,
                       std::string_view title) override;
    std::optional<std::string> ShowFileDialog(Form* owner, const FileDialog& request) override;
    Rectangle NormalPlacement(const Form& form) const override;
    CapturedWindow ReleaseCapture() override;
    void SetCapture(CapturedWindow window) override;

    // Calls `stands` whenever a form is on the screen and its first Form_Paint is over. A script
    // can then do what a person would.
    void WhenFormStands(std::function<void(Form&)> stands) { whenFormStands_ = std::move(stands); }
    // Handles the messages that wait, as the innermost form does while it is shown: such a script
    // calls it after what it did.
    void HandleWaiting();
    // What is in the window of a form that is shown, as a PNG; pages that still load are waited
    // for. Empty when there is no such window, or no screen.
    std::string PictureOf(const Form& form);
    // The window of a form that is shown; null when it is not.
    HWND WindowOf(const Form& form) const;

  private:
    FormWindow* Find(const Form* form) const;
    // The innermost form's window, else the owner's.
    HWND TopWindow() const;
    // The window that a box of this form stands on.
    HWND OwnerOfBox(const Form* owner) const;

    std::function<HWND()> owner_;
    std::vector<FormWindow*> windows_;  // nested, the innermost last
    std::function<void(Form&)> whenFormStands_;
    bool hasOle_;
};

}  // namespace morpho
