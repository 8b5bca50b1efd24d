#include "addin/mod_addin_common.h"

#include "platform/front_page.h"
#include "platform/platform.h"
#include "shared/log.h"

namespace morpho {

namespace {

bool IsPopup(const CommandBarControl& control) {
    const int type = control.Type();
    return type == kPopupControl || type == kButtonPopupControl || type == kSplitButtonPopupControl;
}

std::string Described(const ControlReference& reference) {
    const int* id = std::get_if<int>(&reference);
    return id != nullptr ? "id " + std::to_string(*id) : "tag " + std::get<std::string>(reference);
}

std::unique_ptr<CommandBarControl> Find(CommandBar& bar, const ControlReference& reference) {
    if (const int* id = std::get_if<int>(&reference)) return bar.FindControl(*id, {}, true);
    return bar.FindControl({}, std::get<std::string>(reference), true);
}

bool Matches(const CommandBarControl& control, const ControlReference& reference) {
    if (const int* id = std::get_if<int>(&reference)) return control.Id() == *id;
    return control.Tag() == std::get<std::string>(reference);
}

// Creates one item that is not there yet.
class ItemCreation {
  public:
    ItemCreation(const Program& program, const CommandBarItem& item)
        : program_(program), item_(item) {}

    // Null when the item has no place; throws when the host refuses something.
    std::unique_ptr<CommandBarControl> Create() const {
        const auto controls = TargetControls();
        if (!controls) return nullptr;
        const std::optional<int> before = Position(*controls);
        if (!before) return nullptr;
        auto control = controls->Add(item_.type, item_.tag, *before, true);
        if (!control) return nullptr;
        Log("  item created");
        control->SetTag(item_.tag);
        if (!item_.caption.empty())
            control->SetCaption(MakeAcceleratorCaption(*controls, item_.caption));
        control->SetBeginGroup(item_.beginGroup);
        if (!item_.tooltip.empty()) control->SetTooltipText(item_.tooltip);
        if (!item_.picture.empty() && item_.type == kButtonControl) TryToShowPicture(*control);
        return control;
    }

  private:
    void Log(std::string_view line) const { WriteLog(program_, line); }

    std::unique_ptr<CommandBarControls> TargetControls() const {
        if (!item_.refPopup) {
            Log("  Ref popup not specified. Adding to command bar...");
            return item_.bar->Controls();
        }
        const auto popup = Find(*item_.bar, *item_.refPopup);
        if (!popup) {
            Log("  Ref popup " + Described(*item_.refPopup) + " not found");
            return nullptr;
        }
        if (!IsPopup(*popup)) {
            Log("  Ref popup not of type popup");
            return nullptr;
        }
        return popup->Controls();
    }

    // Where the item goes among the controls, from 1; nothing when it must not be appended.
    std::optional<int> Position(const CommandBarControls& controls) const {
        if (!item_.refControl) Log("  Ref control not specified.");
        for (int i = 1; item_.refControl && i <= controls.Count(); ++i) {
            const auto control = controls.Item(i);
            if (Matches(*control, *item_.refControl)) return control->Index() + 1;
        }
        Log("  Ref item not found");
        if (item_.appendIfNoRef) return controls.Count() + 1;
        Log("  not appending");
        return {};
    }

    // An item without its face is better than none.
    void TryToShowPicture(CommandBarControl& control) const {
        try {
            Log("  Changing item style for image...");
            const auto button = control.AsButton();
            if (!button) throw RunTimeError(ErrorNumber::kTypeMismatch, "Type mismatch");
            button->SetStyle(kIconAndCaptionStyle);
            Log("  Setting item image...");
            SetButtonFace(program_, *button, item_.picture);
            Log("  Item image set");
        } catch (const std::exception& error) {
            Log("Error while setting image for item " + item_.tag + " Desc: " + error.what());
        }
    }

    const Program& program_;
    const CommandBarItem& item_;
};

}  // namespace

std::unique_ptr<CommandBarControl> CreateCommandBarItem(const Program& program,
                                                        const CommandBarItem& item) {
    try {
        WriteLog(program, "Creating item " + item.tag + "...");
        if (item.bar == nullptr) return nullptr;
        if (auto existing = item.bar->FindControl({}, item.tag, true)) {
            WriteLog(program, "  Item found");
            return existing;
        }
        return ItemCreation(program, item).Create();
    } catch (const std::exception& error) {
        WriteLog(program, "Error while creating item " + item.tag + " Desc: " + error.what());
        return nullptr;
    }
}

}  // namespace morpho
