#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/automation.h"

namespace morpho::test {

// Makes objects that remember how they were called and answer what a test wants.
class FakeAutomation : public AutomationFactory {
  public:
    // The identifiers for which there is a class.
    std::vector<std::string> classes{"FrontPage.Explorer.6.0"};
    // By method. A method that is not here fails.
    std::map<std::string, AutomationValue> results{{"vtiBringToTop", {}},
                                                   {"vtiCreateFolder", 1},
                                                   {"vtiGetDocToFile", 1},
                                                   {"vtiIsFolderInWeb", 0},
                                                   {"vtiMakeThemeFresh", 1}};
    // Every call, such as "vtiCreateFolder _themes/a" and "m text, 7, True".
    std::vector<std::string> calls;
    // Does what the method would do to its surroundings.
    std::function<void(std::string_view method)> whenCalled;
    // Objects that were created and not yet let go.
    int alive = 0;

    std::unique_ptr<AutomationObject> CreateObject(std::string_view progId) override;
};

}  // namespace morpho::test
