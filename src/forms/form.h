#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/control.h"
#include "forms/toolkit.h"
#include "platform/run_time_error.h"

namespace morpho {

enum class WindowState { kNormal = 0, kMinimized = 1, kMaximized = 2 };
enum class MousePointer { kDefault = 0, kHourglass = 11 };
enum class BorderStyle { kSizable, kFixedDialog };
// Where the window first appears: in the middle of its owner (of the screen when it has none), or
// of the screen. Form_Load may choose another place.
enum class StartPosition { kCenterOwner, kCenterScreen };

struct FormSpec {
    std::string_view name;
    std::string_view caption = {};
    Size inner = {};  // the client area, in twips
    BorderStyle border = BorderStyle::kFixedDialog;
    // The smallest outer size, in twips, that a person can drag a sizable window to.
    Size minimum = {};
    StartPosition start = StartPosition::kCenterOwner;
    // Whether the window shows a close button of its own.
    bool hasCloseButton = true;
};

// A window. Deriving classes declare their controls as members and override the Form_ events.
//
// A host or a toolkit may deliver a person's input within any call that a handler makes. While a
// handler runs, the form and its controls therefore refuse input; a form that the handler shows
// accepts it. Handlers that code raises nest as before.
class Form : public Container {
  public:
    Form(Toolkit& toolkit, const FormSpec& spec);

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    BorderStyle Border() const { return border_; }
    Size MinimumSize() const { return minimum_; }
    StartPosition Start() const { return start_; }
    bool HasCloseButton() const { return hasCloseButton_; }
    Form& OwnerForm() override { return *this; }
    bool IsOperable() const override { return true; }

    // The outer rectangle on the screen, in twips, and the inner size within the window's borders.
    const Rectangle& Bounds() const { return bounds_; }
    void SetBounds(const Rectangle& bounds);
    Size Inner() const { return {bounds_.width - chrome_.width, bounds_.height - chrome_.height}; }
    // Sets how much larger the outer size is than the inner one; for a toolkit that knows it before
    // Form_Load. Keeps the inner size and raises no event.
    void SetChrome(Size chrome);
    // Moves the window before Form_Load; raises no event.
    void SetPosition(int left, int top);
    WindowState State() const { return state_; }
    void SetState(WindowState state);
    MousePointer Pointer() const { return pointer_; }
    void SetPointer(MousePointer pointer);
    void BringToTop() { Changed(aspect::kToTop); }

    // Runs Form_Load, once.
    void Load();
    // Loads the form if need be and returns when it has been hidden or unloaded.
    void ShowModal() { ShowModalOn(toolkit_); }
    // The same on another toolkit than the form's own: a batch can draw its form as a real window.
    void ShowModalOn(Toolkit& toolkit);
    // Makes ShowModal return and keeps the form loaded.
    void Hide();
    // Asks Form_QueryUnload. Unless that refuses, the form is unloaded and ShowModal returns.
    void Unload();
    bool IsLoaded() const { return loaded_; }
    bool IsVisible() const { return visible_; }

    // Input from a window system, a test or a batch. UserClose is the window's own close button; it
    // returns true when the form was unloaded. UserEscape is the Escape key: it presses the cancel
    // button; without one it closes a dialog. UserResize is accepted even while a handler runs,
    // because the window already has the new size.
    bool UserClose();
    bool UserEscape();
    void UserResize(const Rectangle& outer, Size inner, WindowState state);
    void Painted();

    // The control that has the focus; null before any has. When a handler disables this control, or
    // a frame around it, and enables it again, the control gets the focus back.
    Control* Focused() const { return focused_; }
    // Reports that the window system moved the focus.
    void FocusMoved(Control* control) { focused_ = control; }

    // Runs an event handler. An exception that the handler lets out goes to HandlerFailed and no
    // further.
    void RunHandler(std::string_view name, const std::function<void()>& handler);
    bool RunsHandler() const { return handlers_ > 0; }
    // Shows a message box on this form.
    Answer MsgBox(std::string_view text, int flags, std::string_view title);

    // Connects the window; null disconnects. The toolkit owns it.
    void Attach(Peer* window);

  protected:
    virtual void Form_Load() {}
    virtual void Form_Paint() {}
    virtual void Form_Resize() {}
    // `byUser`: the user closes the window; otherwise the program unloads the form.
    virtual void Form_QueryUnload(bool& /*cancel*/, bool /*byUser*/) {}
    virtual void HandlerFailed(std::string_view /*handler*/, const RunTimeError& /*error*/) {}

    Toolkit& TheToolkit() const { return toolkit_; }

  private:
    friend class Control;
    class HandlerCount;

    void Changed(Aspects changed);
    void TryUnload(bool byUser);
    // Records that code gave this control the focus.
    void FocusGiven(Control& control);
    // Remembers the focus when this control, about to be disabled, has or contains it.
    void KeepFocus(const Control& disabled);
    // Restores the remembered focus once its control is operable again.
    void GiveFocusBack();

    Toolkit& toolkit_;
    std::string name_;
    std::string caption_;
    BorderStyle border_;
    Size minimum_;
    StartPosition start_;
    bool hasCloseButton_;
    Rectangle bounds_;
    Size chrome_;  // outer less inner size
    WindowState state_ = WindowState::kNormal;
    MousePointer pointer_ = MousePointer::kDefault;
    bool loaded_ = false;
    bool visible_ = false;
    int handlers_ = 0;  // running now, nested
    Control* focused_ = nullptr;
    Control* lostFocus_ = nullptr;  // disabled by the running handler
    Peer* window_ = nullptr;
};

}  // namespace morpho
