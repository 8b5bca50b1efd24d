#include "forms/text_box.h"

#include <algorithm>

#include "forms/control_visitor.h"
#include "text/utf8.h"

namespace morpho {

namespace {

constexpr char32_t kBackspace = 8;

bool IsInsideCharacter(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

// Lengths, in bytes of whole characters, of the beginning and the end that two texts share.
struct Common {
    std::size_t front = 0;
    std::size_t back = 0;
};

Common CommonOf(std::string_view before, std::string_view after) {
    Common common;
    const std::size_t most = std::min(before.size(), after.size());
    while (common.front < most && before[common.front] == after[common.front])
        ++common.front;
    while (common.front > 0 &&
           (IsInsideCharacter(before, common.front) || IsInsideCharacter(after, common.front)))
        --common.front;
    const auto fromEnd = [](std::string_view text, std::size_t count) {
        return text.size() - count;
    };
    while (common.back < most - common.front &&
           before[fromEnd(before, common.back + 1)] == after[fromEnd(after, common.back + 1)])
        ++common.back;
    while (common.back > 0 && IsInsideCharacter(after, fromEnd(after, common.back)))
        --common.back;
    return common;
}

}  // namespace

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

bool TextBox::Admits(char32_t& key) {
    if (keyPress_) Raise("KeyPress", [&] { keyPress_(key); });
    return key != 0;
}

bool TextBox::AdmitsAll(std::string& characters) {
    std::string admitted;
    for (std::size_t at = 0; at < characters.size();) {
        char32_t key = NextCharacter(characters, at).value_or(kReplacementCharacter);
        if (!Admits(key)) return false;
        AppendCharacter(admitted, key);
    }
    characters = admitted;
    return true;
}

bool TextBox::UserEdit(std::string_view text) {
    if (!CanType()) return false;
    if (text == text_) return true;
    const Common common = CommonOf(text_, text);
    std::string inserted(text.substr(common.front, text.size() - common.front - common.back));
    char32_t deletion = kBackspace;
    if (inserted.empty() ? !Admits(deletion) : !AdmitsAll(inserted)) return true;
    SetText(text_.substr(0, common.front) + inserted + text_.substr(text_.size() - common.back));
    return true;
}

bool TextBox::UserType(std::string_view keys) {
    for (std::size_t at = 0; at < keys.size();) {
        const char32_t key = NextCharacter(keys, at).value_or(kReplacementCharacter);
        std::string edited = text_;
        if (key != kBackspace) {
            AppendCharacter(edited, key);
        } else {
            while (IsInsideCharacter(edited, edited.size() - 1))
                edited.pop_back();
            if (!edited.empty()) edited.pop_back();
        }
        if (!UserEdit(edited)) return false;
    }
    return true;
}

bool TextBox::UserStep(int by) {
    return CanType() && bar_ != nullptr && bar_->UserSet(bar_->Value() + by);
}

}  // namespace morpho
