#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace morpho {

// The host's menus and toolbars, named after its own objects, with the members that the add-ins
// use. The objects are views: the caller owns the view, the host owns what it shows. Texts are
// UTF-8, collections are 1-based. An index out of range, the use of a control that was deleted, and
// a call that the host refuses throw RunTimeError (kAutomation).

// Values of CommandBarControl::Type.
inline constexpr int kButtonControl = 1;
inline constexpr int kPopupControl = 10;
inline constexpr int kButtonPopupControl = 12;
inline constexpr int kSplitButtonPopupControl = 13;

// Values of CommandBarButton::Style.
inline constexpr int kAutomaticStyle = 0;
inline constexpr int kIconAndCaptionStyle = 3;

class CommandBarButton;
class CommandBarControls;

class CommandBarControl {
  public:
    virtual ~CommandBarControl() = default;
    virtual int Type() const = 0;
    // The number of the host's own command; 1 for a control that an add-in has added.
    virtual int Id() const = 0;
    // The position in its collection, from 1.
    virtual int Index() const = 0;
    // A text of the add-in's own, by which it finds the control again; empty for none.
    virtual std::string Tag() const = 0;
    virtual void SetTag(std::string_view tag) = 0;
    // With "&" before the access key; "&&" stands for one "&".
    virtual std::string Caption() const = 0;
    virtual void SetCaption(std::string_view caption) = 0;
    virtual void SetTooltipText(std::string_view text) = 0;
    // Whether a separator stands before the control.
    virtual void SetBeginGroup(bool begins) = 0;
    // Removes the control from its bar.
    virtual void Delete() = 0;

    // The same control as a button; null when it is none.
    virtual std::unique_ptr<CommandBarButton> AsButton() = 0;
    // The controls of a popup; null when it is no popup.
    virtual std::unique_ptr<CommandBarControls> Controls() = 0;
};

// Clicks on a button are reported for as long as this object lives. It may outlive the button and
// the views of it.
class ClickEvents {
  public:
    virtual ~ClickEvents() = default;
};

class CommandBarButton {
  public:
    virtual ~CommandBarButton() = default;
    virtual void SetStyle(int style) = 0;
    // Shows a picture, the bytes of a BMP file, as the button's face. Releases below 5 have no such
    // property and throw.
    virtual void SetPicture(std::string_view bitmap) = 0;
    // Shows the picture on the clipboard as the button's face.
    virtual void PasteFace() = 0;
    // Calls `clicked` at every click. The host catches nothing: `clicked` must not throw.
    virtual std::unique_ptr<ClickEvents> OnClick(std::function<void()> clicked) = 0;
};

class CommandBarControls {
  public:
    virtual ~CommandBarControls() = default;
    virtual int Count() const = 0;
    virtual std::unique_ptr<CommandBarControl> Item(int index) const = 0;
    // Adds a control of this type before the control at `before`; Count() + 1 adds it at the end.
    // `parameter` is a text that the host keeps with it. A temporary control goes when the host
    // closes. May return null.
    virtual std::unique_ptr<CommandBarControl> Add(int type, std::string_view parameter, int before,
                                                   bool temporary) = 0;
};

class CommandBar {
  public:
    virtual ~CommandBar() = default;
    virtual std::string Name() const = 0;
    virtual std::unique_ptr<CommandBarControls> Controls() = 0;
    // The first control with this identifier, or with this tag; with `recursive` those of its
    // popups, too. Null when there is none.
    virtual std::unique_ptr<CommandBarControl> FindControl(std::optional<int> id,
                                                           std::optional<std::string_view> tag,
                                                           bool recursive) = 0;
};

class CommandBars {
  public:
    virtual ~CommandBars() = default;
    // The bar of this name, such as "Pictures"; throws when there is none.
    virtual std::unique_ptr<CommandBar> Item(std::string_view name) = 0;
    // Null when there is none.
    virtual std::unique_ptr<CommandBar> ActiveMenuBar() = 0;
};

}  // namespace morpho
