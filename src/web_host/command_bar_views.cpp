// The host's objects for the model of its bars: views that refuse the use of what is gone.

#include "text/ignoring_case.h"
#include "web_host/host_command_bars.h"
#include "web_host/refusal.h"

namespace morpho {

namespace {

std::unique_ptr<CommandBarControl> ViewOfControl(const std::shared_ptr<HostControl>& control);

std::shared_ptr<HostControl> Standing(const std::weak_ptr<HostControl>& control) {
    auto standing = control.lock();
    if (!standing || standing->Parent() == nullptr) RefuseCall("The control was deleted.");
    return standing;
}

class ControlsView : public CommandBarControls {
  public:
    explicit ControlsView(const std::shared_ptr<HostControls>& controls) : controls_(controls) {}

    int Count() const override { return Standing()->Count(); }
    std::unique_ptr<CommandBarControl> Item(int index) const override {
        const auto controls = Standing();
        if (index < 1 || index > controls->Count())
            RefuseCall("There is no control " + std::to_string(index) + ".");
        return ViewOfControl(controls->All()[static_cast<std::size_t>(index) - 1]);
    }
    std::unique_ptr<CommandBarControl> Add(int type, std::string_view parameter, int before,
                                           bool /*temporary*/) override {
        HostControlSpec spec;
        spec.type = type;
        spec.parameter = parameter;
        return ViewOfControl(Standing()->Insert(before, std::move(spec)));
    }

  private:
    std::shared_ptr<HostControls> Standing() const {
        auto controls = controls_.lock();
        if (!controls) RefuseCall("The bar or popup was deleted.");
        return controls;
    }

    std::weak_ptr<HostControls> controls_;
};

class ButtonView : public CommandBarButton {
  public:
    explicit ButtonView(std::weak_ptr<HostControl> button) : button_(std::move(button)) {}

    void SetStyle(int style) override { Standing(button_)->Set(&HostControlLook::style, style); }
    void SetPicture(std::string_view bitmap) override {
        const auto button = Standing(button_);
        if (!button->Parent()->Host().CanSetPicture())
            RefuseCall("A button of this release has no property Picture.");
        button->Set(&HostControlLook::face, std::string(bitmap));
    }
    void PasteFace() override {
        const auto button = Standing(button_);
        std::string picture = button->Parent()->Host().PictureOnClipboard();
        if (picture.empty()) RefuseCall("There is no picture on the clipboard.");
        button->Set(&HostControlLook::face, std::move(picture));
    }
    std::unique_ptr<ClickEvents> OnClick(std::function<void()> clicked) override {
        return Standing(button_)->OnClick(std::move(clicked));
    }

  private:
    std::weak_ptr<HostControl> button_;
};

class ControlView : public CommandBarControl {
  public:
    explicit ControlView(std::weak_ptr<HostControl> control) : control_(std::move(control)) {}

    int Type() const override { return Standing(control_)->Type(); }
    int Id() const override { return Standing(control_)->Id(); }
    int Index() const override { return Standing(control_)->Index(); }
    std::string Tag() const override { return Standing(control_)->Tag(); }
    void SetTag(std::string_view tag) override { Standing(control_)->SetTag(tag); }
    std::string Caption() const override { return Standing(control_)->Look().caption; }
    void SetCaption(std::string_view caption) override {
        Standing(control_)->Set(&HostControlLook::caption, std::string(caption));
    }
    void SetTooltipText(std::string_view text) override {
        Standing(control_)->Set(&HostControlLook::tooltip, std::string(text));
    }
    void SetBeginGroup(bool begins) override {
        Standing(control_)->Set(&HostControlLook::beginsGroup, begins);
    }
    void Delete() override { Standing(control_)->Remove(); }
    std::unique_ptr<CommandBarButton> AsButton() override {
        const bool isButton = Standing(control_)->Type() == kButtonControl;
        return isButton ? std::make_unique<ButtonView>(control_) : nullptr;
    }
    std::unique_ptr<CommandBarControls> Controls() override {
        const auto& controls = Standing(control_)->Controls();
        return controls ? std::make_unique<ControlsView>(controls) : nullptr;
    }

  private:
    std::weak_ptr<HostControl> control_;
};

std::unique_ptr<CommandBarControl> ViewOfControl(const std::shared_ptr<HostControl>& control) {
    return control ? std::make_unique<ControlView>(control) : nullptr;
}

class BarView : public CommandBar {
  public:
    explicit BarView(const std::shared_ptr<HostBar>& bar) : bar_(bar) {}

    std::string Name() const override { return Standing()->name; }
    std::unique_ptr<CommandBarControls> Controls() override {
        return std::make_unique<ControlsView>(Standing()->controls);
    }
    std::unique_ptr<CommandBarControl> FindControl(std::optional<int> id,
                                                   std::optional<std::string_view> tag,
                                                   bool recursive) override {
        return ViewOfControl(Standing()->controls->Find(id, tag, recursive));
    }

  private:
    std::shared_ptr<HostBar> Standing() const {
        auto bar = bar_.lock();
        if (!bar) RefuseCall("The host has closed.");
        return bar;
    }

    std::weak_ptr<HostBar> bar_;
};

class BarsView : public CommandBars {
  public:
    explicit BarsView(const HostCommandBars& bars) : bars_(bars) {}

    std::unique_ptr<CommandBar> Item(std::string_view name) override {
        for (const auto& bar : bars_.All()) {
            if (EqualIgnoringCase(bar->name, name)) return std::make_unique<BarView>(bar);
        }
        RefuseCall("There is no command bar named " + std::string(name) + ".");
    }
    std::unique_ptr<CommandBar> ActiveMenuBar() override {
        return std::make_unique<BarView>(bars_.MenuBar());
    }

  private:
    const HostCommandBars& bars_;
};

}  // namespace

std::unique_ptr<CommandBars> HostCommandBars::View() {
    return std::make_unique<BarsView>(*this);
}

}  // namespace morpho
