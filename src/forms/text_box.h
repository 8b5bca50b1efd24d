#pragma once

#include "forms/controls.h"

namespace morpho {

// A box for text. KeyPress gets every character before the box does and may reject it; Change is
// raised whenever the text has changed.
class TextBox : public Control {
  public:
    // Gets a whole Unicode character (never half a surrogate pair); 8 stands for a deletion.
    // Setting it to 0 rejects it.
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
    void SelectAll() { Changed(aspect::kSelectAll); }
    // Makes the keys Up and Down step this bar by one. The bar must live as long as the box.
    void StepWith(ScrollBar& bar) { bar_ = &bar; }

    // The user's edit would change the text to this one, by a key, a paste, a drop, an input method
    // or an undo. KeyPress gets each inserted character, or 8 once when characters are only
    // deleted. If it rejects one, the whole edit is refused, because half a paste would be a text
    // that nobody meant. The toolkit shows Text() afterwards.
    bool UserEdit(std::string_view text);
    // Types at the end of the text, key by key; 8 deletes the last character.
    bool UserType(std::string_view keys);
    // The key Up (1) or Down (-1); false when there is nothing to step.
    bool UserStep(int by);
    void Accept(ControlVisitor& visitor) override;

  private:
    bool CanType() const { return IsOpenToUser() && kind_ == Kind::kSingleLine; }
    bool Admits(char32_t& key);
    bool AdmitsAll(std::string& characters);

    Kind kind_;
    std::string text_;
    KeyHandler keyPress_;
    Handler change_;
    ScrollBar* bar_ = nullptr;
};

}  // namespace morpho
