#pragma once

#include "support/peer_contract.h"
#include "windows_toolkit/windows_toolkit.h"
// Needs the other one before it.
#include <commctrl.h>

namespace morpho::test {

// Works the windows by real messages.
class WindowsScreen : public Screen {
  public:
    WindowsScreen();
    WindowsToolkit& TheToolkit() override { return toolkit_; }
    void Show(Form& form, const std::function<void()>& script) override;
    void Press(const Control& control, Key key) override;
    void Pause() override;
    void BringWithinReach(const Control& control) override;
    std::string Shown(const Control& control) override;

    HWND Window() const { return window_; }
    HWND WindowOf(const Control& control) const;
    // A key for whatever has the focus, with Alt perhaps.
    void PressKey(WPARAM key, bool alt = false);

  private:
    WindowsToolkit toolkit_;
    std::function<void()> script_;
    HWND window_ = nullptr;
};

}  // namespace morpho::test
