#include "support/fake_automation.h"

#include <algorithm>

#include "platform/run_time_error.h"

namespace morpho::test {

namespace {

std::string Shown(const AutomationValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
    return "Nothing";
}

class FakeObject : public AutomationObject {
  public:
    explicit FakeObject(FakeAutomation& factory) : factory_(factory) { ++factory_.alive; }
    ~FakeObject() override { --factory_.alive; }

    AutomationValue Call(std::string_view method,
                         std::span<const AutomationValue> arguments) override {
        std::string call(method);
        for (const AutomationValue& argument : arguments)
            call += (&argument == arguments.data() ? " " : ", ") + Shown(argument);
        factory_.calls.push_back(call);
        if (factory_.whenCalled) factory_.whenCalled(method);
        const auto result = factory_.results.find(std::string(method));
        if (result == factory_.results.end())
            throw RunTimeError(ErrorNumber::kAutomation, "Automation error");
        return result->second;
    }

  private:
    FakeAutomation& factory_;
};

}  // namespace

std::unique_ptr<AutomationObject> FakeAutomation::CreateObject(std::string_view progId) {
    if (std::find(classes.begin(), classes.end(), progId) == classes.end())
        throw RunTimeError(ErrorNumber::kCannotCreateComponent,
                           "ActiveX component can't create object");
    return std::make_unique<FakeObject>(*this);
}

}  // namespace morpho::test
