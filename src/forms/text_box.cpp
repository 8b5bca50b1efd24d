#include "forms/text_box.h"

#include "forms/control_visitor.h"

namespace morpho {

void TextBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

void TextBox::SetText(std::string_view text) {
    if (text == text_) return;
    SetTextQuietly(text);
    Raise("Change", change_);
}

void TextBox::SetTextQuietly(std::string_view text) {
    if (text == text_) return;
    text_ = text;
    Changed(aspect::kValue);
}

bool TextBox::UserKey(char32_t key) {
    if (!CanType()) return false;
    if (keyPress_) Raise("KeyPress", [&] { keyPress_(key); });
    return key != 0;
}

bool TextBox::UserEdit(std::string_view text) {
    if (!CanType()) return false;
    SetText(text);
    return true;
}

bool TextBox::UserType(std::string_view keys) {
    for (const char key : keys) {
        if (!CanType()) return false;
        if (!UserKey(static_cast<unsigned char>(key))) continue;
        std::string edited = text_;
        if (key != '\b') {
            edited += key;
        } else if (!edited.empty()) {
            edited.pop_back();
        }
        UserEdit(edited);
    }
    return true;
}

}  // namespace morpho
