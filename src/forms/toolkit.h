#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/geometry.h"

namespace morpho {

class Form;

// Flags of a message box: one kind of buttons and one icon, added.
inline constexpr int kOkOnly = 0;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kCriticalIcon = 16;
inline constexpr int kQuestionIcon = 32;
inline constexpr int kInformationIcon = 64;

// The kind of buttons and the icon in a message box's flags.
constexpr int ButtonsOf(int flags) {
    return flags & 0x0f;
}
constexpr int IconOf(int flags) {
    return flags & 0xf0;
}

// What the person answered a message box.
enum class Answer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

// Stands for the window that held the mouse; only the toolkit that gave it out knows what it is.
// Null: none did.
using CapturedWindow = void*;

// A way to put forms on a screen, or to do without one.
class Toolkit {
  public:
    virtual ~Toolkit() = default;

    // Comes before Form_Load. Gives the form its place on the screen (see StartPosition), and the
    // size of its window's borders as far as that is known (Form::SetChrome).
    virtual void PlaceAtStart(Form& /*form*/) {}
    // Makes a window with peers for the form and all its controls, runs the form's Load and first
    // paint, and returns when the form is hidden or unloaded. Calls may nest: a person then works
    // the innermost form alone.
    virtual void RunModal(Form& form) = 0;
    // Answers closing the box without a button as Cancel where there is one, else as OK or No.
    virtual Answer ShowMessage(Form* owner, std::string_view text, int flags,
                               std::string_view title) = 0;

    // The form's rectangle, in twips, as it is when neither minimised nor maximised.
    virtual Rectangle NormalPlacement(const Form& form) const = 0;
    // Lets go of the mouse, which a control may be holding, so that a modal window can have it.
    virtual CapturedWindow ReleaseCapture() = 0;
    // Gives the mouse back to the window that held it; null does nothing.
    virtual void SetCapture(CapturedWindow window) = 0;
};

}  // namespace morpho
