#pragma once

#include "forms/controls.h"

namespace morpho {

// A box for text. KeyPress sees every character before it reaches the box and may swallow it;
// Change is raised whenever the text has become another one.
class TextBox : public Control {
  public:
    // Gets the character (8 is Backspace); setting it to 0 swallows it.
    using KeyHandler = std::function<void(char32_t&)>;
    enum class Kind { kSingleLine, kMultiLineReadOnly };

    TextBox(Container& parent, const ControlSpec& spec, Kind kind = Kind::kSingleLine,
            KeyHandler keyPress = {}, Handler change = {})
        : Control(parent, spec),
          kind_(kind),
          keyPress_(std::move(keyPress)),
          change_(std::move(change)) {}

    Kind BoxKind() const { return kind_; }
    const std::string& Text() const { return text_; }
    void SetText(std::string_view text);
    void SetTextQuietly(std::string_view text);

    // A character key is pressed: false when it must not reach the box.
    bool UserKey(char32_t key);
    // The person's editing has made the text this one.
    bool UserEdit(std::string_view text);
    // Types at the end of the text, key by key; 8 takes the last character away.
    bool UserType(std::string_view keys);
    void Accept(ControlVisitor& visitor) override;

  private:
    bool CanType() const { return IsOperable() && kind_ == Kind::kSingleLine; }

    Kind kind_;
    std::string text_;
    KeyHandler keyPress_;
    Handler change_;
};

}  // namespace morpho
