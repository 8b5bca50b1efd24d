#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/file_dialog.h"
#include "forms/geometry.h"

namespace morpho {

class Form;

// Flags of a message box: one kind of buttons, one icon and the default button, added.
inline constexpr int kOkOnly = 0;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kCriticalIcon = 16;
inline constexpr int kQuestionIcon = 32;
inline constexpr int kInformationIcon = 64;
// Enter presses the second button, not the first.
inline constexpr int kSecondButtonDefault = 256;

// The kind of buttons and the icon in a message box's flags.
constexpr int ButtonsOf(int flags) {
    return flags & 0x0f;
}
constexpr int IconOf(int flags) {
    return flags & 0xf0;
}

// The user's answer to a message box.
enum class Answer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

// An opaque handle of the window that had captured the mouse; only the toolkit that returned it can
// use it. Null: no window.
using CapturedWindow = void*;

// Shows forms on a screen, or runs them without one.
class Toolkit {
  public:
    virtual ~Toolkit() = default;

    // Called before Form_Load. Places the form on the screen (see StartPosition) and sets the size
    // of its window's borders as far as it is known (Form::SetChrome).
    virtual void PlaceAtStart(Form& /*form*/) {}
    // Makes a window with peers for the form and all its controls, runs the form's Load and first
    // paint, and returns when the form is hidden or unloaded. Calls may nest: the user can then
    // operate only the innermost form.
    virtual void RunModal(Form& form) = 0;
    // Closing the box without a button answers Cancel if the box has that button, otherwise No or
    // OK.
    virtual Answer ShowMessage(Form* owner, std::string_view text, int flags,
                               std::string_view title) = 0;
    // The path of the file that the user chose; nothing when the user cancelled.
    virtual std::optional<std::string> ShowFileDialog(Form* owner, const FileDialog& request) = 0;

    // The form's rectangle, in twips, as it is when neither minimised nor maximised.
    virtual Rectangle NormalPlacement(const Form& form) const = 0;
    // Releases a control's capture of the mouse, so that a modal window can use the mouse.
    virtual CapturedWindow ReleaseCapture() = 0;
    // Restores the capture to the window that had it; null does nothing.
    virtual void SetCapture(CapturedWindow window) = 0;
};

}  // namespace morpho
