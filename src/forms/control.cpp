#include "forms/control.h"

#include <algorithm>
#include <iterator>

#include "forms/form.h"

namespace morpho {

namespace {

std::string WithoutAmpersands(std::string text) {
    std::erase(text, '&');
    return text;
}

}  // namespace

Control::Control(Container& parent, const ControlSpec& spec)
    : parent_(parent),
      name_(spec.name),
      place_(spec.place),
      caption_(spec.caption),
      toolTip_(spec.toolTip),
      accessKey_(spec.accessKey),
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
    if (caption == caption_) return;
    caption_ = caption;
    Changed(aspect::kCaption);
}

void Control::SetToolTip(std::string_view toolTip) {
    if (toolTip == toolTip_) return;
    toolTip_ = toolTip;
    Changed(aspect::kCaption);
}

std::string Control::AccessibleName() const {
    if (!accessibleName_.empty()) return accessibleName_;
    if (!caption_.empty()) return WithoutAmpersands(caption_);
    const auto& siblings = parent_.Controls();
    const auto self = std::find(siblings.begin(), siblings.end(), this);
    if (self != siblings.begin() && self != siblings.end() && toolTip_.empty()) {
        return WithoutAmpersands((*std::prev(self))->Caption());
    }
    return toolTip_;
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Changed(aspect::kEnabled);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed(aspect::kVisible);
}

bool Control::IsOperable() const {
    return enabled_ && visible_ && parent_.IsOperable();
}

void Control::SetFocus() {
    OwnerForm().FocusMoved(this);
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
