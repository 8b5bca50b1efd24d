#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "platform/command_bars.h"

namespace morpho {

class HostCommandBars;
class HostControls;

// The identifier of a control that is not the host's own.
inline constexpr int kAddedControlId = 1;

// What a person sees of a control.
struct HostControlLook {
    std::string caption = {};  // with "&" before the access key
    std::string tooltip = {};
    std::string face = {};  // the bytes of a BMP file; empty for none
    int style = kAutomaticStyle;
    bool beginsGroup = false;  // a separator stands before it
    bool isEnabled = true;
    bool isVisible = true;
};

struct HostControlSpec {
    int type = kButtonControl;
    int id = kAddedControlId;
    HostControlLook look = {};
    std::string parameter = {};
};

// A button or a popup on one of the host's bars. Its collection owns it; who keeps it longer finds
// it with Parent() null.
class HostControl : public std::enable_shared_from_this<HostControl> {
  public:
    HostControl(HostControls& parent, HostControlSpec spec);

    int Type() const { return spec_.type; }
    int Id() const { return spec_.id; }
    const std::string& Parameter() const { return spec_.parameter; }
    // The collection that it stands in; null after it was removed.
    HostControls* Parent() const { return parent_; }
    // The position there, from 1; 0 after it was removed.
    int Index() const;
    // The controls of a popup; null for a button.
    const std::shared_ptr<HostControls>& Controls() const { return controls_; }

    const std::string& Tag() const { return tag_; }
    void SetTag(std::string_view tag) { tag_ = tag; }
    const HostControlLook& Look() const { return spec_.look; }
    // Sets one property, such as &HostControlLook::isEnabled.
    template <typename Value>
    void Set(Value HostControlLook::*property, std::type_identity_t<Value> value) {
        if (spec_.look.*property == value) return;
        spec_.look.*property = std::move(value);
        TellChanged();
    }

    // Calls `clicked` at every click for as long as the result lives; `clicked` must not throw.
    std::unique_ptr<ClickEvents> OnClick(std::function<void()> clicked);
    // What a person's click does; nothing while the button is disabled. A handler may remove the
    // button and end any subscription, its own too: who has unsubscribed is not called.
    void Click();
    void Remove();

  private:
    friend class HostControls;
    void TellChanged();
    // The control, and all that it holds, no longer stands on a bar.
    void Detach();

    HostControls* parent_;
    HostControlSpec spec_;
    std::string tag_;
    std::shared_ptr<HostControls> controls_;
    std::vector<std::weak_ptr<std::function<void()>>> subscribers_;
};

// The controls of a bar or of a popup, in order.
class HostControls {
  public:
    // `host` must outlive it.
    explicit HostControls(HostCommandBars& host) : host_(host) {}
    ~HostControls() { Clear(); }
    HostControls(const HostControls&) = delete;
    HostControls& operator=(const HostControls&) = delete;

    HostCommandBars& Host() const { return host_; }
    const std::vector<std::shared_ptr<HostControl>>& All() const { return controls_; }
    int Count() const { return static_cast<int>(controls_.size()); }
    // Adds a control before the one at `before`, from 1; Count() + 1 adds it at the end. Throws
    // RunTimeError for another position, and for a type that is neither a button nor a popup.
    std::shared_ptr<HostControl> Insert(int before, HostControlSpec spec);
    std::shared_ptr<HostControl> Append(HostControlSpec spec) {
        return Insert(Count() + 1, std::move(spec));
    }
    // The first control that has the identifier and the tag, where they are given; with
    // `recursive` a popup's controls follow the popup. Null when there is none.
    std::shared_ptr<HostControl> Find(std::optional<int> id, std::optional<std::string_view> tag,
                                      bool recursive) const;

  private:
    friend class HostControl;
    void Remove(HostControl& control);
    void Clear();

    HostCommandBars& host_;
    std::vector<std::shared_ptr<HostControl>> controls_;
};

}  // namespace morpho
