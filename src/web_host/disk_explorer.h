#pragma once

#include "platform/automation.h"
#include "web_host/disk_application.h"

namespace morpho {

// The automation objects of the host: its explorer, such as "FrontPage.Explorer.6.0", and no
// other.
class DiskAutomation : public AutomationFactory {
  public:
    // The host must outlive all objects.
    explicit DiskAutomation(DiskApplication& host) : host_(host) {}

    std::unique_ptr<AutomationObject> CreateObject(std::string_view progId) override;

    // What "vtiBringToTop" does from now on; nothing where the host has no window.
    void WhenBroughtToTop(std::function<void()> action) { bringToTop_ = std::move(action); }

  private:
    DiskApplication& host_;
    std::function<void()> bringToTop_;
};

}  // namespace morpho
