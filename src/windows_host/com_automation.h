#pragma once

#include "platform/automation.h"

namespace morpho {

// Makes the objects of other programs by COM, which must be initialised on the calling thread.
class ComAutomation : public AutomationFactory {
  public:
    std::unique_ptr<AutomationObject> CreateObject(std::string_view progId) override;
};

}  // namespace morpho
