#include "forms/controls.h"

#include <algorithm>

#include "forms/control_visitor.h"
#include "forms/picture_size.h"

namespace morpho {

void Frame::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void Label::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void CommandButton::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void CheckBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void PictureBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void WebBrowser::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void Timer::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

Control* Label::Buddy() const {
    if (AccessKey() == '\0' || IsLink()) return nullptr;
    const auto& siblings = Parent().Controls();
    const auto self = std::find(siblings.begin(), siblings.end(), this);
    const auto found = std::find_if(self, siblings.end(),
                                    [](const Control* control) { return control->TakesFocus(); });
    return found == siblings.end() ? nullptr : *found;
}

bool Label::UserClick() {
    if (!IsOpenToUser() || !click_) return false;
    Raise("Click", click_);
    return true;
}

bool CommandButton::IsDefault() const {
    return role_ == ButtonRole::kDefault || role_ == ButtonRole::kDefaultAndCancel;
}

bool CommandButton::IsCancel() const {
    return role_ == ButtonRole::kCancel || role_ == ButtonRole::kDefaultAndCancel;
}

std::string CommandButton::ShownToolTip() const {
    const std::string toolTip = Control::ShownToolTip();
    if (shortcut_.IsNone()) return toolTip;
    return (toolTip.empty() ? "" : toolTip + " ") + "(" + shortcut_.Text() + ")";
}

bool CommandButton::UserClick() {
    if (!IsOpenToUser()) return false;
    Raise("Click", click_);
    return true;
}

void CheckBox::SetValue(bool value) {
    if (value == value_) return;
    SetValueQuietly(value);
    Raise("Click", click_);
}

void CheckBox::SetValueQuietly(bool value) {
    if (value == value_) return;
    value_ = value;
    Changed(aspect::kValue);
}

bool CheckBox::UserSet(bool value) {
    if (!IsOpenToUser()) return false;
    SetValue(value);
    return true;
}

void PictureBox::SetPicture(std::string encoded) {
    picture_ = std::move(encoded);
    const Size pixels = PictureSize(picture_);
    naturalSize_ = {pixels.width * kTwipsPerPixel, pixels.height * kTwipsPerPixel};
    Changed(aspect::kPicture);
}

void WebBrowser::Navigate(std::string_view path, int flags) {
    address_ = path;
    flags_ = flags;
    Changed(aspect::kAddress);
}

void WebBrowser::RefreshPage() {
    Changed(aspect::kReload);
}

void WebBrowser::Refresh2(int level) {
    Changed(level == kRefreshCompletely ? aspect::kReloadCompletely : aspect::kReload);
}

bool Timer::Tick() {
    if (!IsOpenToUser()) return false;
    Raise("Timer", tick_);
    return true;
}

}  // namespace morpho
