#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "web_host/host_control.h"

namespace morpho {

class Clipboard;

// Mirrors the bars on a screen. It may add and remove controls and observers while it is told.
class CommandBarsObserver {
  public:
    virtual ~CommandBarsObserver() = default;
    // The control now stands in its Parent().
    virtual void Added(HostControl& control) = 0;
    // The control, with all that it holds, is about to leave its Parent().
    virtual void Removing(HostControl& control) = 0;
    // The control's Look() is another.
    virtual void Changed(HostControl& control) = 0;
};

struct HostBar {
    std::string name;
    std::shared_ptr<HostControls> controls;
};

// The menus of the menu bar, in order.
enum class HostMenu { kFile, kView, kFormat, kHelp };

// The menu bar and the toolbar of the stand-in host. The menus start empty and the window of the
// host fills them:
//
//     auto open = bars.Menu(HostMenu::kFile).Append({.id = 23, .look = {.caption = "&Open..."}});
//     events_.push_back(open->OnClick([this] { OpenWeb(); }));
//
// It keeps no control for the next run: all are temporary.
class HostCommandBars {
  public:
    // `version` is the host's, such as "6.0". The clipboard, from which faces are pasted, must
    // outlive this object; null: there is never a picture on it.
    HostCommandBars(const std::string& version, const Clipboard* clipboard);
    HostCommandBars(const HostCommandBars&) = delete;
    HostCommandBars& operator=(const HostCommandBars&) = delete;

    // The menu bar, then "Pictures".
    const std::vector<std::shared_ptr<HostBar>>& All() const { return bars_; }
    const std::shared_ptr<HostBar>& MenuBar() const { return bars_[0]; }
    const std::shared_ptr<HostBar>& Pictures() const { return bars_[1]; }
    HostControls& Menu(HostMenu menu) const {
        return *menus_[static_cast<std::size_t>(menu)]->Controls();
    }

    // Only from release 5 on can a picture be set as the face of a button; earlier ones paste it.
    bool CanSetPicture() const { return release_ >= 5; }
    // The bytes of a BMP file; empty when there is no picture.
    std::string PictureOnClipboard() const;

    // The observer must be removed before it goes.
    void AddObserver(CommandBarsObserver& observer) { observers_.push_back(&observer); }
    void RemoveObserver(CommandBarsObserver& observer) { std::erase(observers_, &observer); }
    void Tell(void (CommandBarsObserver::*what)(HostControl&), HostControl& control) const;

    // The bars as the host's objects; this object must outlive the result, not what it hands out.
    std::unique_ptr<CommandBars> View();

  private:
    std::shared_ptr<HostBar> AddBar(std::string_view name);

    int release_;  // 6 for "6.0"
    const Clipboard* clipboard_;
    std::vector<CommandBarsObserver*> observers_;
    std::vector<std::shared_ptr<HostBar>> bars_;
    std::array<std::shared_ptr<HostControl>, 4> menus_;
};

}  // namespace morpho
