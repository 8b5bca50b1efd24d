#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/command_bars.h"
#include "shared/component.h"

namespace morpho {

// Names a control by its Id, a number, or by its Tag.
using ControlReference = std::variant<int, std::string>;

struct CommandBarItem {
    CommandBar* bar = nullptr;  // null: nothing is created
    std::string tag = {};       // by which the item is found again
    std::string caption = {};   // without access key; empty for none
    std::string tooltip = {};   // empty for none
    std::string picture = {};   // the bytes of a BMP file; empty for none
    // The popup of the bar under which the item goes; without one it goes on the bar itself.
    std::optional<ControlReference> refPopup = {};
    // The control there after which the item goes.
    std::optional<ControlReference> refControl = {};
    // Without reference control, or when it is not there: true adds the item at the end, false
    // creates nothing.
    bool appendIfNoRef = true;
    bool beginGroup = false;
    int type = kButtonControl;
};

// Finds the control with the item's tag, and leaves it as it is, or creates it. Null when it cannot
// be created: the log says why.
std::unique_ptr<CommandBarControl> CreateCommandBarItem(const Program& program,
                                                        const CommandBarItem& item);

// The caption with "&" before the first letter or digit that is no access key of `controls` yet;
// unchanged when there is none.
std::string MakeAcceleratorCaption(const CommandBarControls& controls, std::string_view caption);

// Shows a picture, the bytes of a BMP file, as the button's face. Throws RunTimeError.
void SetButtonFace(const Program& program, CommandBarButton& button, std::string_view picture);

}  // namespace morpho
