#include "forms/form.h"

namespace morpho {

Form::Form(Toolkit& toolkit, const FormSpec& spec)
    : toolkit_(toolkit),
      name_(spec.name),
      caption_(spec.caption),
      border_(spec.border),
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
    RunHandler("Form_Load", [this] { Form_Load(); });
}

void Form::ShowModalOn(Toolkit& toolkit) {
    visible_ = true;
    toolkit.RunModal(*this);
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
    TryUnload(true);
    return !loaded_;
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

void Form::RunHandler(std::string_view name, const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& error) {
        HandlerFailed(name, AsRunTimeError(error));
    }
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
