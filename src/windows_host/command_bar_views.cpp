#include "windows_host/command_bar_views.h"

#include <string>
#include <utility>

#include "platform/run_time_error.h"
#include "windows_com/event_connection.h"
#include "windows_host/picture_object.h"

namespace morpho {

namespace {

// The events of a button.
constexpr IID kButtonEvents = {0x000C0351, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr DISPID kClick = 1;

std::unique_ptr<CommandBarControl> ViewOfControl(DispatchCaller control);

template <typename Value>
Variant OrMissing(const std::optional<Value>& value) {
    return value ? Variant(*value) : Variant::Missing();
}

class ControlsView : public CommandBarControls {
  public:
    explicit ControlsView(DispatchCaller controls) : controls_(std::move(controls)) {}

    int Count() const override { return IntegerOf(controls_.Get("Count")); }
    std::unique_ptr<CommandBarControl> Item(int index) const override {
        return ViewOfControl(controls_.GetDispatch("Item", {index}));
    }
    std::unique_ptr<CommandBarControl> Add(int type, std::string_view parameter, int before,
                                           bool temporary) override {
        // The host adds at the end what is to stand before nothing.
        const Variant place = before == Count() + 1 ? Variant::Missing() : Variant(before);
        return ViewOfControl(
            controls_.GetDispatch("Add", {type, Variant::Missing(), parameter, place, temporary}));
    }

  private:
    DispatchCaller controls_;
};

// The arguments of a click are the button and, by reference, whether the host's own command is
// cancelled. A button of an add-in has none, so that both are left alone.
class ClickConnection : public ClickEvents {
  public:
    ClickConnection(const DispatchCaller& button, std::function<void()> clicked)
        : button_(button),
          connection_(button.Object().Get(), kButtonEvents, kClick,
                      [clicked = std::move(clicked)](const CallArguments&) { clicked(); }) {}

  private:
    DispatchCaller button_;  // released after the connection has ended
    EventConnection connection_;
};

class ButtonView : public CommandBarButton {
  public:
    explicit ButtonView(DispatchCaller button) : button_(std::move(button)) {}

    void SetStyle(int style) override { button_.Put("Style", style); }
    void SetPicture(std::string_view bitmap) override {
        button_.Put("Picture", MakePictureObject(bitmap));
    }
    void PasteFace() override { button_.Call("PasteFace"); }
    std::unique_ptr<ClickEvents> OnClick(std::function<void()> clicked) override {
        return std::make_unique<ClickConnection>(button_, std::move(clicked));
    }

  private:
    DispatchCaller button_;
};

class ControlView : public CommandBarControl {
  public:
    explicit ControlView(DispatchCaller control) : control_(std::move(control)) {}

    int Type() const override { return IntegerOf(control_.Get("Type")); }
    int Id() const override { return IntegerOf(control_.Get("Id")); }
    int Index() const override { return IntegerOf(control_.Get("Index")); }
    std::string Tag() const override { return TextOf(control_.Get("Tag")); }
    void SetTag(std::string_view tag) override { control_.Put("Tag", tag); }
    std::string Caption() const override { return TextOf(control_.Get("Caption")); }
    void SetCaption(std::string_view caption) override { control_.Put("Caption", caption); }
    void SetTooltipText(std::string_view text) override { control_.Put("TooltipText", text); }
    void SetBeginGroup(bool begins) override { control_.Put("BeginGroup", begins); }
    void Delete() override { control_.Call("Delete"); }
    std::unique_ptr<CommandBarButton> AsButton() override {
        return Type() == kButtonControl ? std::make_unique<ButtonView>(control_) : nullptr;
    }
    std::unique_ptr<CommandBarControls> Controls() override {
        // Of the host's kinds of control, popups and what looks like them have controls.
        if (Type() == kButtonControl || !control_.Has("Controls")) return nullptr;
        return std::make_unique<ControlsView>(control_.GetDispatch("Controls"));
    }

  private:
    DispatchCaller control_;
};

std::unique_ptr<CommandBarControl> ViewOfControl(DispatchCaller control) {
    return control ? std::make_unique<ControlView>(std::move(control)) : nullptr;
}

class BarView : public CommandBar {
  public:
    explicit BarView(DispatchCaller bar) : bar_(std::move(bar)) {}

    std::string Name() const override { return TextOf(bar_.Get("Name")); }
    std::unique_ptr<CommandBarControls> Controls() override {
        return std::make_unique<ControlsView>(bar_.GetDispatch("Controls"));
    }
    std::unique_ptr<CommandBarControl> FindControl(std::optional<int> id,
                                                   std::optional<std::string_view> tag,
                                                   bool recursive) override {
        const Variant none = Variant::Missing();
        return ViewOfControl(bar_.GetDispatch(
            "FindControl", {none, OrMissing(id), OrMissing(tag), none, recursive}));
    }

  private:
    DispatchCaller bar_;
};

class BarsView : public CommandBars {
  public:
    explicit BarsView(DispatchCaller bars) : bars_(std::move(bars)) {}

    std::unique_ptr<CommandBar> Item(std::string_view name) override {
        auto bar = ViewOfBar(bars_.GetDispatch("Item", {name}));
        if (bar) return bar;
        throw RunTimeError(ErrorNumber::kAutomation,
                           "There is no command bar named " + std::string(name) + ".");
    }
    std::unique_ptr<CommandBar> ActiveMenuBar() override {
        return ViewOfBar(bars_.GetDispatch("ActiveMenuBar"));
    }

  private:
    static std::unique_ptr<CommandBar> ViewOfBar(DispatchCaller bar) {
        return bar ? std::make_unique<BarView>(std::move(bar)) : nullptr;
    }

    DispatchCaller bars_;
};

}  // namespace

std::unique_ptr<CommandBars> ViewOfCommandBars(DispatchCaller bars) {
    return std::make_unique<BarsView>(std::move(bars));
}

}  // namespace morpho
