#include "web_host/host_control.h"

#include <algorithm>

#include "web_host/host_command_bars.h"
#include "web_host/refusal.h"

namespace morpho {

namespace {

using Handler = std::function<void()>;

// The button knows the handler only as long as this object keeps it.
class Subscription : public ClickEvents {
  public:
    explicit Subscription(std::shared_ptr<Handler> handler) : handler_(std::move(handler)) {}

  private:
    std::shared_ptr<Handler> handler_;
};

bool IsPopupType(int type) {
    return type == kPopupControl || type == kButtonPopupControl || type == kSplitButtonPopupControl;
}

}  // namespace

HostControl::HostControl(HostControls& parent, HostControlSpec spec)
    : parent_(&parent), spec_(std::move(spec)) {
    if (IsPopupType(spec_.type)) controls_ = std::make_shared<HostControls>(parent.Host());
}

int HostControl::Index() const {
    if (parent_ == nullptr) return 0;
    const auto& all = parent_->All();
    const auto place = std::find_if(all.begin(), all.end(),
                                    [this](const auto& control) { return control.get() == this; });
    return static_cast<int>(place - all.begin()) + 1;
}

std::unique_ptr<ClickEvents> HostControl::OnClick(std::function<void()> clicked) {
    std::erase_if(subscribers_, [](const auto& subscriber) { return subscriber.expired(); });
    auto handler = std::make_shared<Handler>(std::move(clicked));
    subscribers_.push_back(handler);
    return std::make_unique<Subscription>(std::move(handler));
}

void HostControl::Click() {
    if (!Look().isEnabled) return;
    // Handlers may remove this control, subscribe and unsubscribe.
    const auto self = shared_from_this();
    const auto subscribers = subscribers_;
    for (const auto& subscriber : subscribers) {
        if (const auto handler = subscriber.lock()) (*handler)();
    }
}

void HostControl::Remove() {
    if (parent_ != nullptr) parent_->Remove(*this);
}

void HostControl::TellChanged() {
    if (parent_ != nullptr) parent_->Host().Tell(&CommandBarsObserver::Changed, *this);
}

void HostControl::Detach() {
    parent_ = nullptr;
    if (controls_) controls_->Clear();
}

std::shared_ptr<HostControl> HostControls::Insert(int before, HostControlSpec spec) {
    if (spec.type != kButtonControl && !IsPopupType(spec.type))
        RefuseCall("A control of type " + std::to_string(spec.type) + " cannot be added.");
    if (before < 1 || before > Count() + 1)
        RefuseCall("There is no position " + std::to_string(before) + " among the controls.");
    auto control = std::make_shared<HostControl>(*this, std::move(spec));
    controls_.insert(controls_.begin() + (before - 1), control);
    host_.Tell(&CommandBarsObserver::Added, *control);
    return control;
}

std::shared_ptr<HostControl> HostControls::Find(std::optional<int> id,
                                                std::optional<std::string_view> tag,
                                                bool recursive) const {
    if (!id && !tag) return nullptr;
    for (const auto& control : controls_) {
        if ((!id || control->Id() == *id) && (!tag || control->Tag() == *tag)) return control;
        if (!recursive || !control->Controls()) continue;
        if (auto found = control->Controls()->Find(id, tag, true)) return found;
    }
    return nullptr;
}

void HostControls::Remove(HostControl& control) {
    const auto kept = control.shared_from_this();
    host_.Tell(&CommandBarsObserver::Removing, control);
    control.Detach();
    std::erase(controls_, kept);
}

void HostControls::Clear() {
    for (const auto& control : controls_)
        control->Detach();
    controls_.clear();
}

}  // namespace morpho
