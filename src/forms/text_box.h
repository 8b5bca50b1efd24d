#pragma once

#include "forms/controls.h"

namespace morpho {

// A box for text. KeyPress sees every character before it reaches the box and may swallow it;
// Change is raised whenever the text has become another one.
class TextBox : public Control {
  public:
    // Gets a whole character of Unicode (never half a surrogate pair); 8 stands for a deletion.
    // Setting it to 0 swallows it.
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
    // From now on the keys Up and Down step this bar by one, which must live as long as the box.
    void StepWith(ScrollBar& bar) { bar_ = &bar; }

    // The person's editing would make the text this one: by a key, a paste, a drop, an input method
    // or an undo alike. KeyPress is asked about each character that comes in, or once with 8 when
    // some only go. If it swallows one, the text stays as it was: half a paste is another text.
    // The toolkit shows Text() afterwards.
    bool UserEdit(std::string_view text);
    // Types at the end of the text, key by key; 8 takes the last character away.
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
