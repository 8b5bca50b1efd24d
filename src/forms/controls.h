#pragma once

#include "forms/control.h"
#include "forms/shortcut.h"
#include "forms/sliders.h"

namespace morpho {

// A group box with controls inside.
class Frame : public Control, public Container {
  public:
    using Control::Control;
    Form& OwnerForm() override { return Control::OwnerForm(); }
    bool IsOperable() const override { return Control::IsOperable(); }
    bool TakesFocus() const override { return false; }
    void Accept(ControlVisitor& visitor) override;
};

enum class Alignment { kLeft, kRight, kCenter };

// Text. With a handler it is a link.
class Label : public Control {
  public:
    Label(Container& parent, const ControlSpec& spec, Alignment alignment = Alignment::kLeft,
          Handler click = {})
        : Control(parent, spec), alignment_(alignment), click_(std::move(click)) {}

    Alignment TextAlignment() const { return alignment_; }
    bool IsLink() const { return click_ != nullptr; }
    bool TakesFocus() const override { return IsLink(); }
    // The control that the access key leads to: the next one of the same container that can have
    // the focus. Null when there is none, when the label has no access key, and for a link.
    Control* Buddy() const;
    bool UserClick();
    void Accept(ControlVisitor& visitor) override;

  private:
    Alignment alignment_;
    Handler click_;
};

// The keys that press a button: Enter (default), Escape (cancel) or both.
enum class ButtonRole { kNone, kDefault, kCancel, kDefaultAndCancel };

class CommandButton : public Control {
  public:
    CommandButton(Container& parent, const ControlSpec& spec, Handler click,
                  ButtonRole role = ButtonRole::kNone, Shortcut shortcut = {})
        : Control(parent, spec), click_(std::move(click)), role_(role), shortcut_(shortcut) {}

    // Whether Enter, or Escape, presses the button.
    bool IsDefault() const;
    bool IsCancel() const;
    const Shortcut& ShortcutKey() const { return shortcut_; }
    // The tool tip, followed by the shortcut in parentheses.
    std::string ShownToolTip() const override;
    bool UserClick();
    void Accept(ControlVisitor& visitor) override;

  private:
    Handler click_;
    ButtonRole role_;
    Shortcut shortcut_;
};

class CheckBox : public Control {
  public:
    CheckBox(Container& parent, const ControlSpec& spec, Handler click = {})
        : Control(parent, spec), click_(std::move(click)) {}

    bool Value() const { return value_; }
    void SetValue(bool value);
    void SetValueQuietly(bool value);
    bool UserSet(bool value);
    void Accept(ControlVisitor& visitor) override;

  private:
    bool value_ = false;
    Handler click_;
};

// A picture, shown at its own size from the top left corner; with `stretch` it fills the control.
// An animation plays. In a frame it can be moved beyond the edges, which clip it.
class PictureBox : public Control {
  public:
    PictureBox(Container& parent, const ControlSpec& spec, bool stretch = false)
        : Control(parent, spec), stretch_(stretch) {}

    bool TakesFocus() const override { return false; }
    bool Stretch() const { return stretch_; }
    // The encoded picture (JPEG, GIF, PNG, BMP); empty shows nothing.
    const std::string& Picture() const { return picture_; }
    void SetPicture(std::string encoded);
    // The picture's own size in twips. {0, 0} when nothing can be shown: there is no picture, it is
    // damaged, of another format, or has more than kMaxShownPixels.
    Size NaturalSize() const { return naturalSize_; }
    // Called by a peer that could not decode the picture.
    void PictureFailed() { naturalSize_ = {}; }
    void Accept(ControlVisitor& visitor) override;

  private:
    bool stretch_;
    std::string picture_;
    Size naturalSize_;
};

// Flags of WebBrowser::Navigate.
inline constexpr int kNavigateNoHistory = 2;
inline constexpr int kNavigateNoReadFromCache = 4;
inline constexpr int kNavigateNoWriteToCache = 8;
inline constexpr int kRefreshCompletely = 3;

// An embedded browser for pages on disk.
class WebBrowser : public Control {
  public:
    using Control::Control;

    // Shows the page at this Windows path. A toolkit that needs an address escapes "%", "#" and the
    // like in it.
    void Navigate(std::string_view path, int flags);
    // Shows the current page again; with Refresh2(kRefreshCompletely) every picture of it is read
    // again too. While the page still loads, this navigates to it again; without a page it does
    // nothing.
    void RefreshPage();
    void Refresh2(int level);

    const std::string& Address() const { return address_; }
    int NavigationFlags() const { return flags_; }
    void Accept(ControlVisitor& visitor) override;

  private:
    std::string address_;
    int flags_ = 0;
};

// A timer. It never fires without a toolkit.
class Timer : public Control {
  public:
    Timer(Container& parent, std::string_view name, int intervalMilliseconds, Handler tick)
        : Control(parent, {name, {}}), interval_(intervalMilliseconds), tick_(std::move(tick)) {
        SetEnabled(false);
    }

    bool TakesFocus() const override { return false; }
    int Interval() const { return interval_; }
    // Does nothing while a handler runs; the next tick follows.
    bool Tick();
    void Accept(ControlVisitor& visitor) override;

  private:
    int interval_;
    Handler tick_;
};

}  // namespace morpho
