#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "windows_system/win32.h"
// After <windows.h>.
#include <oleauto.h>

namespace morpho::test {

// An object of the host as its members hand it out; null is "Nothing".
using HostObject = std::shared_ptr<IDispatch>;
// What a member answers: nothing, a truth value, a number, a text (UTF-8) or an object.
using HostValue = std::variant<std::monostate, bool, int, std::string, HostObject>;

// A member throws it to fail: with a description the caller gets an EXCEPINFO, else the bare
// result.
struct HostRefusal {
    HRESULT result;
    std::string description = {};
};

// The arguments of one call, in the order of the documentation. What was handed over by reference
// is its value here.
class HostCall {
  public:
    explicit HostCall(const DISPPARAMS& given) : given_(given) {}

    std::size_t Count() const { return given_.cArgs; }
    // Whether the caller gave it: it may be left out in the middle, too.
    bool Has(std::size_t index) const;
    bool IsByReference(std::size_t index) const;
    // Throws HostRefusal for an argument that is missing or cannot be converted.
    std::string Text(std::size_t index) const;
    int Number(std::size_t index) const;
    bool Flag(std::size_t index, bool otherwise) const;
    IUnknown* Object(std::size_t index) const;

  private:
    const VARIANT& At(std::size_t index) const { return given_.rgvarg[given_.cArgs - 1 - index]; }
    // Converts it; the caller clears the result.
    VARIANT As(std::size_t index, VARTYPE type) const;

    const DISPPARAMS& given_;
};

inline constexpr WORD kCall = DISPATCH_METHOD;
inline constexpr WORD kGet = DISPATCH_PROPERTYGET;
inline constexpr WORD kPut = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

// A property that can be assigned has two entries.
struct HostMember {
    const char* name;
    WORD kind;
    std::size_t maxArguments;
    std::function<HostValue(const HostCall&)> run;
};

// What the host does before each call of a member, "Web.ApplyTheme": it may pump messages, or throw
// HostRefusal in its place.
struct HostHooks {
    std::function<void(const std::string& member)> before = [](const std::string&) {};
    int objects = 0;  // that the host has handed out and that are not released yet
};

struct HostClass {
    std::shared_ptr<HostHooks> hooks;
    std::string name;
    std::vector<HostMember> members;
    // Another interface of the object, or null.
    std::function<IUnknown*(REFIID id)> other = {};
};

// An object of the host for callers by name. The default member is "Item", where it has one.
HostObject MakeObject(HostClass made);

// A collection whose "Item" counts from `first`; `more` are its other members.
HostObject MakeCollection(const std::shared_ptr<HostHooks>& hooks, const std::string& name,
                          int first, std::function<int()> count,
                          std::function<HostValue(int index)> item,
                          std::vector<HostMember> more = {});

// The object with a count of its own for the caller; null for "Nothing".
IDispatch* HandOut(const HostObject& object);

}  // namespace morpho::test
