#include "forms/form.h"

#include "forms/controls.h"

namespace morpho {

namespace {

// Whether `control` is `around`, or inside it.
bool IsWithin(const Control& control, const Control& around) {
    const Control* at = &control;
    while (at != nullptr && at != &around)
        at = dynamic_cast<const Control*>(&at->Parent());
    return at != nullptr;
}

CommandButton* CancelButtonOf(const Container& container) {
    for (Control* const control : container.Controls()) {
        if (const auto* const inner = dynamic_cast<const Container*>(control)) {
            if (CommandButton* const found = CancelButtonOf(*inner)) return found;
        }
        auto* const button = dynamic_cast<CommandButton*>(control);
        if (button != nullptr && button->IsCancel() && button->IsOperable()) return button;
    }
    return nullptr;
}

}  // namespace

Form::Form(Toolkit& toolkit, const FormSpec& spec)
    : toolkit_(toolkit),
      name_(spec.name),
      caption_(spec.caption),
      border_(spec.border),
      minimum_(spec.minimum),
      start_(spec.start),
      hasCloseButton_(spec.hasCloseButton),
      bounds_{0, 0, spec.inner.width, spec.inner.height} {}

void Form::SetCaption(std::string_view caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Changed(aspect::kCaption);
}

void Form::SetBounds(const Rectangle& bounds) {
    if (bounds == bounds_) return;
    const bool resized = bounds.width != bounds_.width || bounds.height != bounds_.height;
    bounds_ = bounds;
    Changed(aspect::kPlace);
    if (resized) RunHandler("Form_Resize", [this] { Form_Resize(); });
}

void Form::SetChrome(Size chrome) {
    const Size inner = Inner();
    bounds_.width = inner.width + chrome.width;
    bounds_.height = inner.height + chrome.height;
    chrome_ = chrome;
}

void Form::SetPosition(int left, int top) {
    bounds_.left = left;
    bounds_.top = top;
}

void Form::SetState(WindowState state) {
    if (state == state_) return;
    state_ = state;
    Changed(aspect::kWindowState);
}

void Form::SetPointer(MousePointer pointer) {
    if (pointer == pointer_) return;
    pointer_ = pointer;
    Changed(aspect::kPointer);
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    toolkit_.PlaceAtStart(*this);
    RunHandler("Form_Load", [this] { Form_Load(); });
}

void Form::ShowModalOn(Toolkit& toolkit) {
    visible_ = true;
    try {
        toolkit.RunModal(*this);
    } catch (...) {
        visible_ = false;
        throw;
    }
    visible_ = false;
}

void Form::Hide() {
    visible_ = false;
    Changed(aspect::kVisible);
}

void Form::Unload() {
    TryUnload(false);
}

bool Form::UserClose() {
    if (RunsHandler()) return false;
    TryUnload(true);
    return !loaded_;
}

bool Form::UserEscape() {
    if (CommandButton* const button = CancelButtonOf(*this)) return button->UserClick();
    return border_ == BorderStyle::kFixedDialog && UserClose();
}

void Form::TryUnload(bool byUser) {
    bool cancel = false;
    RunHandler("Form_QueryUnload", [&] { Form_QueryUnload(cancel, byUser); });
    if (cancel) return;
    loaded_ = false;
    Hide();
}

void Form::UserResize(const Rectangle& outer, Size inner, WindowState state) {
    const bool resized = outer.width != bounds_.width || outer.height != bounds_.height ||
                         inner != Inner() || state != state_;
    bounds_ = outer;
    chrome_ = {outer.width - inner.width, outer.height - inner.height};
    state_ = state;
    if (resized) RunHandler("Form_Resize", [this] { Form_Resize(); });
}

void Form::Painted() {
    RunHandler("Form_Paint", [this] { Form_Paint(); });
}

// Counts a handler while it runs, including the handling of its error. The focus that a handler
// takes from a control is forgotten when the outermost handler ends.
class Form::HandlerCount {
  public:
    explicit HandlerCount(Form& form) : form_(form) { ++form_.handlers_; }
    ~HandlerCount() {
        if (--form_.handlers_ == 0) form_.lostFocus_ = nullptr;
    }
    HandlerCount(const HandlerCount&) = delete;
    HandlerCount& operator=(const HandlerCount&) = delete;

  private:
    Form& form_;
};

void Form::RunHandler(std::string_view name, const std::function<void()>& handler) {
    const HandlerCount running(*this);
    try {
        handler();
    } catch (const std::exception& error) {
        HandlerFailed(name, AsRunTimeError(error));
    } catch (...) {
        HandlerFailed(name, {ErrorNumber::kInternal, "Unknown error"});
    }
}

void Form::FocusGiven(Control& control) {
    focused_ = &control;
    lostFocus_ = nullptr;
}

void Form::KeepFocus(const Control& disabled) {
    if (RunsHandler() && lostFocus_ == nullptr && focused_ != nullptr &&
        IsWithin(*focused_, disabled))
        lostFocus_ = focused_;
}

void Form::GiveFocusBack() {
    if (lostFocus_ != nullptr && lostFocus_->IsOperable()) lostFocus_->SetFocus();
}

Answer Form::MsgBox(std::string_view text, int flags, std::string_view title) {
    return toolkit_.ShowMessage(this, text, flags, title);
}

void Form::Attach(Peer* window) {
    window_ = window;
    Changed(aspect::kAll);
}

void Form::Changed(Aspects changed) {
    if (window_ != nullptr) window_->Show(changed);
}

}  // namespace morpho
