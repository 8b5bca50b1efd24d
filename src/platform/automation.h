#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace morpho {

// An argument or a result of a method that is called by name: nothing, a truth value, a number or a
// text (UTF-8).
using AutomationValue = std::variant<std::monostate, bool, std::int32_t, std::string>;

// An object of another program, reached by the names of its methods.
class AutomationObject {
  public:
    virtual ~AutomationObject() = default;
    // Calls a method; each argument is handed over by reference. Throws RunTimeError (kAutomation)
    // when there is no such method or it fails.
    virtual AutomationValue Call(std::string_view method,
                                 std::span<const AutomationValue> arguments) = 0;
};

class AutomationFactory {
  public:
    virtual ~AutomationFactory() = default;
    // A new object of the class with this programmatic identifier, such as
    // "FrontPage.Explorer.6.0"; the caller owns it. Throws kCannotCreateComponent when the class is
    // not registered. May return null.
    virtual std::unique_ptr<AutomationObject> CreateObject(std::string_view progId) = 0;
};

}  // namespace morpho
