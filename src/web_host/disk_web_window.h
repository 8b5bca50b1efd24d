#pragma once

#include "formats/blank_page.h"
#include "platform/run_time_error.h"

namespace morpho {

// This host shows no pages for editing: none is open but the blank ones that were asked for, and
// these only their owners know.
class DiskWebWindow : public WebWindow {
  public:
    int PageWindowCount() const override { return 0; }
    std::unique_ptr<PageWindow> PageWindowAt(int /*index*/) override {
        throw RunTimeError(ErrorNumber::kAutomation, "No such page is open.");
    }
    std::unique_ptr<PageWindow> AddPageWindow() override {
        return std::make_unique<BlankPageWindow>(std::make_shared<BlankPage>());
    }
};

}  // namespace morpho
