#include "forms/control.h"

#include <algorithm>
#include <iterator>

#include "forms/form.h"
#include "text/trim.h"

namespace morpho {

Control::Control(Container& parent, const ControlSpec& spec)
    : parent_(parent),
      name_(spec.name),
      place_(spec.place),
      caption_(ReadMarks(spec.caption)),
      toolTip_(spec.toolTip),
      accessibleName_(spec.accessibleName) {
    parent.controls_.push_back(this);
}

void Control::SetPlace(const Rectangle& place) {
    if (place == place_) return;
    place_ = place;
    Changed(aspect::kPlace);
}

void Control::SetTop(int twips) {
    SetPlace({place_.left, twips, place_.width, place_.height});
}

void Control::SetWidth(int twips) {
    SetPlace({place_.left, place_.top, twips, place_.height});
}

void Control::SetHeight(int twips) {
    SetPlace({place_.left, place_.top, place_.width, twips});
}

void Control::SetCaption(std::string_view caption) {
    if (caption == caption_.text && caption_.keyAt == std::string::npos) return;
    caption_ = {std::string(caption)};
    Changed(aspect::kCaption);
}

char Control::AccessKey() const {
    return caption_.keyAt == std::string::npos ? '\0' : caption_.text[caption_.keyAt];
}

void Control::SetToolTip(std::string_view toolTip) {
    if (toolTip == toolTip_) return;
    toolTip_ = toolTip;
    Changed(aspect::kCaption);
}

std::string Control::ShownToolTip() const {
    return std::string(Trim(toolTip_));
}

std::string Control::AccessibleName() const {
    if (!accessibleName_.empty()) return accessibleName_;
    if (!Caption().empty()) return Caption();
    const auto& siblings = parent_.Controls();
    const auto self = std::find(siblings.begin(), siblings.end(), this);
    if (self != siblings.begin() && self != siblings.end() && toolTip_.empty()) {
        return (*std::prev(self))->Caption();
    }
    return toolTip_;
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    if (!enabled) OwnerForm().KeepFocus(*this);
    enabled_ = enabled;
    Changed(aspect::kEnabled);
    if (enabled) OwnerForm().GiveFocusBack();
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed(aspect::kVisible);
}

bool Control::IsOperable() const {
    return enabled_ && visible_ && parent_.IsOperable();
}

bool Control::IsOpenToUser() const {
    return IsOperable() && !OwnerForm().RunsHandler();
}

void Control::SetFocus() {
    OwnerForm().FocusGiven(*this);
    Changed(aspect::kFocus);
}

void Control::Attach(Peer* peer) {
    peer_ = peer;
    Changed(aspect::kAll);
}

void Control::Changed(Aspects changed) {
    if (peer_ != nullptr) peer_->Show(changed);
}

void Control::Raise(std::string_view event, const std::function<void()>& handler) {
    if (handler) OwnerForm().RunHandler(name_ + "_" + std::string(event), handler);
}

}  // namespace morpho
