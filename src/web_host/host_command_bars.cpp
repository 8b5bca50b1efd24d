#include "web_host/host_command_bars.h"

#include <algorithm>
#include <cstdlib>

#include "platform/clipboard.h"

namespace morpho {

namespace {

// The releases number their Format menu differently. Where it is not known it gets a number that no
// release uses.
int FormatMenuId(int release) {
    if (release == 4) return 62774;
    return release == 5 || release == 6 ? 30006 : 39006;
}

}  // namespace

HostCommandBars::HostCommandBars(const std::string& version, const Clipboard* clipboard)
    : release_(std::atoi(version.c_str())), clipboard_(clipboard) {
    HostControls& menuBar = *AddBar("Menu Bar")->controls;
    AddBar("Pictures");
    const auto addMenu = [&menuBar](int id, const char* caption) {
        return menuBar.Append({.type = kPopupControl, .id = id, .look = {.caption = caption}});
    };
    menus_ = {addMenu(30002, "&File"), addMenu(30004, "&View"),
              addMenu(FormatMenuId(release_), "F&ormat"), addMenu(30010, "&Help")};
}

std::shared_ptr<HostBar> HostCommandBars::AddBar(std::string_view name) {
    return bars_.emplace_back(std::make_shared<HostBar>(
        HostBar{std::string(name), std::make_shared<HostControls>(*this)}));
}

std::string HostCommandBars::PictureOnClipboard() const {
    return clipboard_ == nullptr ? std::string() : clipboard_->Picture();
}

void HostCommandBars::Tell(void (CommandBarsObserver::*what)(HostControl&),
                           HostControl& control) const {
    const auto told = observers_;
    for (CommandBarsObserver* observer : told) {
        const bool stays = std::count(observers_.begin(), observers_.end(), observer) != 0;
        if (stays) (observer->*what)(control);
    }
}

}  // namespace morpho
