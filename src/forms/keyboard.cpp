#include "forms/keyboard.h"

#include <algorithm>

#include "forms/controls.h"
#include "forms/option_button.h"

namespace morpho {

namespace {

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Everything in the container, in order of declaration, a frame before what it holds.
void Collect(const Container& container, std::vector<Control*>& controls) {
    for (Control* const control : container.Controls()) {
        controls.push_back(control);
        if (const auto* const inner = dynamic_cast<const Container*>(control))
            Collect(*inner, controls);
    }
}

std::vector<Control*> AllOf(const Container& container) {
    std::vector<Control*> controls;
    Collect(container, controls);
    return controls;
}

bool CanHaveFocus(const Control& control) {
    return control.TakesFocus() && control.IsOperable();
}

std::vector<OptionButton*> OptionsOf(const Container& container) {
    std::vector<OptionButton*> options;
    for (Control* const control : container.Controls()) {
        auto* const option = dynamic_cast<OptionButton*>(control);
        if (option != nullptr && CanHaveFocus(*option)) options.push_back(option);
    }
    return options;
}

bool IsTabStop(const Control& control) {
    if (!CanHaveFocus(control)) return false;
    if (dynamic_cast<const OptionButton*>(&control) == nullptr) return true;
    const std::vector<OptionButton*> group = OptionsOf(control.Parent());
    const auto chosen = std::find_if(group.begin(), group.end(),
                                     [](const OptionButton* option) { return option->Value(); });
    return &control == (chosen == group.end() ? group.front() : *chosen);
}

// The control that the access key of `control` leads to; null: none.
Control* TargetOf(Control& control) {
    if (!control.IsOperable()) return nullptr;
    Control* target = &control;
    if (const auto* const frame = dynamic_cast<const Frame*>(&control)) {
        const std::vector<Control*> inside = TabStops(*frame);
        target = inside.empty() ? nullptr : inside.front();
    } else if (const auto* const label = dynamic_cast<const Label*>(&control)) {
        if (!label->IsLink()) target = label->Buddy();
    }
    return target != nullptr && CanHaveFocus(*target) ? target : nullptr;
}

void Press(Control& control) {
    if (auto* const button = dynamic_cast<CommandButton*>(&control)) button->UserClick();
    if (auto* const link = dynamic_cast<Label*>(&control)) link->UserClick();
    if (auto* const box = dynamic_cast<CheckBox*>(&control)) box->UserSet(!box->Value());
    if (auto* const option = dynamic_cast<OptionButton*>(&control)) option->UserClick();
}

// The member after the one at `from`, in a circle; the first when `from` is not among them.
template <typename Member>
Member* After(const std::vector<Member*>& members, const Control* from, int by) {
    if (members.empty()) return nullptr;
    const auto at = std::find(members.begin(), members.end(), from);
    if (at == members.end()) return by > 0 ? members.front() : members.back();
    const auto count = static_cast<std::ptrdiff_t>(members.size());
    return members[static_cast<std::size_t>((at - members.begin() + by + count) % count)];
}

}  // namespace

std::vector<Control*> TabStops(const Container& container) {
    std::vector<Control*> stops = AllOf(container);
    std::erase_if(stops, [](const Control* control) { return !IsTabStop(*control); });
    return stops;
}

// A control that was disabled while it had the focus is no stop any more, but the way goes on from
// it.
Control* NextTabStop(const Form& form, bool backwards) {
    std::vector<Control*> stops = AllOf(form);
    const Control* const from = form.Focused();
    std::erase_if(stops,
                  [&](const Control* control) { return control != from && !IsTabStop(*control); });
    Control* const next = After(stops, from, backwards ? -1 : 1);
    return next != nullptr && IsTabStop(*next) ? next : nullptr;
}

bool UserAccessKey(Form& form, char key) {
    std::vector<Control*> targets;
    for (Control* const control : AllOf(form)) {
        Control* const target =
            Upper(control->AccessKey()) == Upper(key) ? TargetOf(*control) : nullptr;
        if (target != nullptr) targets.push_back(target);
    }
    Control* const target = After(targets, form.Focused(), 1);
    if (target == nullptr || form.RunsHandler()) return false;
    target->SetFocus();
    if (targets.size() == 1) Press(*target);
    return true;
}

bool UserShortcut(Form& form, const Shortcut& shortcut) {
    for (Control* const control : AllOf(form)) {
        auto* const button = dynamic_cast<CommandButton*>(control);
        if (button == nullptr || button->ShortcutKey() != shortcut) continue;
        button->UserClick();
        return true;
    }
    return false;
}

bool UserEnter(Form& form) {
    Control* const focused = form.Focused();
    if (auto* const button = dynamic_cast<CommandButton*>(focused)) return button->UserClick();
    if (auto* const link = dynamic_cast<Label*>(focused)) return link->UserClick();
    for (Control* const control : AllOf(form)) {
        auto* const button = dynamic_cast<CommandButton*>(control);
        if (button != nullptr && button->IsDefault() && button->IsOperable())
            return button->UserClick();
    }
    return false;
}

bool UserArrow(Form& form, int by) {
    const auto* const focused = dynamic_cast<OptionButton*>(form.Focused());
    if (focused == nullptr || form.RunsHandler()) return false;
    OptionButton* const next = After(OptionsOf(focused->Parent()), focused, by);
    if (next == nullptr) return false;
    next->SetFocus();
    next->UserClick();
    return true;
}

}  // namespace morpho
