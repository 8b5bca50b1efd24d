#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "windows_com/variant.h"

namespace morpho {

// An object whose members are called by name. Arguments stand in the order of the declaration; one
// that is left out is Variant::Missing(). Failures throw RunTimeError: kObjectNotSet where there is
// no object, kAutomation for a member that is not there, else what the object tells.
class DispatchCaller {
  public:
    using Arguments = std::vector<Variant>;

    DispatchCaller() = default;
    explicit DispatchCaller(ComPointer<IDispatch> object) : object_(std::move(object)) {}

    explicit operator bool() const { return static_cast<bool>(object_); }
    const ComPointer<IDispatch>& Object() const { return object_; }

    // A property's value, or the result of a method that is used like one.
    Variant Get(std::string_view name, const Arguments& arguments = {}) const;
    // The same for an object; it may be null.
    DispatchCaller GetDispatch(std::string_view name, const Arguments& arguments = {}) const;
    void Put(std::string_view name, const Variant& value) const;
    Variant Call(std::string_view name, const Arguments& arguments = {}) const;
    // Whether the object has a member of this name.
    bool Has(std::string_view name) const;

  private:
    Variant Invoke(std::string_view name, WORD kind, const Arguments& arguments) const;

    ComPointer<IDispatch> object_;
};

// A new object of the class with this programmatic identifier. Throws kCannotCreateComponent when
// that is not possible.
DispatchCaller CreateByName(std::string_view progId);

}  // namespace morpho
