#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/automation.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// Makes explorers of release 6.0 that remember how they were called and answer what a test wants.
class FakeAutomation : public AutomationFactory {
  public:
    // By method. A method that is not here fails.
    std::map<std::string, AutomationValue> results{{"vtiBringToTop", {}},
                                                   {"vtiCreateFolder", 1},
                                                   {"vtiGetDocToFile", 1},
                                                   {"vtiIsFolderInWeb", 0},
                                                   {"vtiMakeThemeFresh", 1}};
    // Every call, such as "vtiCreateFolder _themes/a" and "m text, True".
    std::vector<std::string> calls;
    // Does what the method would do to its surroundings.
    std::function<void(std::string_view method)> whenCalled = [](std::string_view) {};
    // Objects that were created and not yet let go.
    int alive = 0;

    std::unique_ptr<AutomationObject> CreateObject(std::string_view progId) override {
        if (progId != "FrontPage.Explorer.6.0")
            throw RunTimeError(ErrorNumber::kCannotCreateComponent, "No such component");
        return std::make_unique<Explorer>(*this);
    }

  private:
    class Explorer : public AutomationObject {
      public:
        explicit Explorer(FakeAutomation& factory) : factory_(factory) { ++factory_.alive; }
        ~Explorer() override { --factory_.alive; }
        AutomationValue Call(std::string_view method,
                             std::span<const AutomationValue> arguments) override {
            std::string call(method);
            for (const AutomationValue& argument : arguments)
                call += (&argument == arguments.data() ? " " : ", ") + Shown(argument);
            factory_.calls.push_back(call);
            factory_.whenCalled(method);
            const auto result = factory_.results.find(std::string(method));
            if (result == factory_.results.end())
                throw RunTimeError(ErrorNumber::kAutomation, "Automation error");
            return result->second;
        }

      private:
        static std::string Shown(const AutomationValue& value) {
            if (const auto* text = std::get_if<std::string>(&value)) return *text;
            return std::get<bool>(value) ? "True" : "False";
        }

        FakeAutomation& factory_;
    };
};

}  // namespace morpho::test
