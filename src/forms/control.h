#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/geometry.h"
#include "forms/marked_caption.h"
#include "forms/peer.h"

namespace morpho {

class Control;
class ControlVisitor;
class Form;

using Handler = std::function<void()>;

// A container of controls: a form or a frame.
class Container {
  public:
    virtual ~Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    // The direct children in order of declaration. This is also the tab order. Where two controls
    // overlap, the one declared later is on top.
    const std::vector<Control*>& Controls() const { return controls_; }
    virtual Form& OwnerForm() = 0;
    // Whether the user can operate the controls inside.
    virtual bool IsOperable() const = 0;

  protected:
    Container() = default;

  private:
    friend class Control;
    std::vector<Control*> controls_;
};

// The declaration of a control. Texts are UTF-8; `place` is in twips within the container.
struct ControlSpec {
    std::string_view name;
    Rectangle place;
    // "&" marks the access key, the letter that reaches the control with Alt (see ReadMarks).
    std::string_view caption = {};
    std::string_view toolTip = {};
    // What a screen reader says; empty: the caption, else the caption of the label before it, else
    // the tool tip.
    std::string_view accessibleName = {};
};

// Base of all controls. A control belongs to its form, which declares it as a member.
class Control {
  public:
    Control(Container& parent, const ControlSpec& spec);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    Container& Parent() const { return parent_; }
    Form& OwnerForm() const { return parent_.OwnerForm(); }

    const Rectangle& Place() const { return place_; }
    void SetPlace(const Rectangle& place);
    void SetTop(int twips);
    void SetWidth(int twips);
    void SetHeight(int twips);

    // The caption without its access key mark.
    const std::string& Caption() const { return caption_.text; }
    // Sets the text literally: "&" is an ordinary character, and the control loses its access key.
    void SetCaption(std::string_view caption);
    // Byte index of the access key in the caption; npos: none.
    std::size_t AccessKeyAt() const { return caption_.keyAt; }
    // The letter of the access key, spelled as in the caption; 0: none.
    char AccessKey() const;
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string_view toolTip);
    // The tool tip as it is shown.
    virtual std::string ShownToolTip() const;
    std::string AccessibleName() const;

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    // Enabled and visible, and so is everything around it.
    bool IsOperable() const;
    // Whether user input is accepted: the control is operable, and no handler of its form runs.
    bool IsOpenToUser() const;

    // Paints the control now.
    void Refresh() { Changed(aspect::kRepaint); }
    // Whether the keyboard can reach the control.
    virtual bool TakesFocus() const { return true; }
    void SetFocus();

    // Connects the peer, which immediately shows the whole state; null disconnects. The caller owns
    // the peer.
    void Attach(Peer* peer);
    virtual void Accept(ControlVisitor& visitor) = 0;

  protected:
    void Changed(Aspects changed);
    // Runs an event handler under the form's error trap; its name in the log is
    // `<control>_<event>`.
    void Raise(std::string_view event, const std::function<void()>& handler);

  private:
    Container& parent_;
    std::string name_;
    Rectangle place_;
    MarkedCaption caption_;
    std::string toolTip_;
    std::string accessibleName_;
    bool enabled_ = true;
    bool visible_ = true;
    Peer* peer_ = nullptr;
};

}  // namespace morpho
