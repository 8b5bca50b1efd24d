#include "windows_host/com_automation.h"

#include <utility>
#include <vector>

#include "windows_com/dispatch_caller.h"

namespace morpho {

namespace {

Variant Argument(const AutomationValue& value) {
    return std::visit(
        [](const auto& held) {
            if constexpr (std::is_same_v<decltype(held), const std::monostate&>)
                return Variant();
            else
                return Variant(held);
        },
        value);
}

AutomationValue Answer(const Variant& value) {
    switch (value.Type()) {
        case VT_EMPTY:
        case VT_NULL:
            return {};
        case VT_BOOL:
            return TruthOf(value);
        case VT_BSTR:
            return TextOf(value);
        default:
            return IntegerOf(value);
    }
}

class ComObject : public AutomationObject {
  public:
    explicit ComObject(DispatchCaller object) : object_(std::move(object)) {}

    AutomationValue Call(std::string_view method,
                         std::span<const AutomationValue> arguments) override {
        std::vector<Variant> values;
        for (const AutomationValue& argument : arguments)
            values.push_back(Argument(argument));
        DispatchCaller::Arguments references;
        for (Variant& value : values)
            references.push_back(Variant::Reference(value));
        return Answer(object_.Get(method, references));
    }

  private:
    DispatchCaller object_;
};

}  // namespace

std::unique_ptr<AutomationObject> ComAutomation::CreateObject(std::string_view progId) {
    return std::make_unique<ComObject>(CreateByName(progId));
}

}  // namespace morpho
