#pragma once

#include <functional>
#include <string>
#include <vector>

#include "windows_com/dispatch_object.h"

namespace morpho::test {

// An object of the host as its members hand it out; null is "Nothing".
using HostObject = ComPointer<IDispatch>;

// One member of a host's object.
struct HostMember {
    const char* name;
    std::size_t arguments;  // at most
    MemberTable::Handler call = {};
    MemberTable::Handler get = {};  // of a property, and
    MemberTable::Handler put = {};  // of one that can be assigned
};
using HostMembers = std::vector<HostMember>;

// A property without arguments.
template <class Read>
HostMember Get(const char* name, Read read) {
    return {name, 0, {}, [read](const CallArguments&) -> Variant { return read(); }};
}
// A method.
inline HostMember Call(const char* name, std::size_t arguments, MemberTable::Handler run) {
    return {name, arguments, std::move(run)};
}
// A method that answers nothing; like most of the host's it takes an optional argument.
template <class Run>
HostMember Order(const char* name, Run run) {
    return Call(name, 1, [run](const CallArguments&) {
        run();
        return Variant();
    });
}

// How the host makes its objects.
struct HostObjects {
    // Comes before each call of a member, "Web.ApplyTheme". It may pump messages, or throw to let
    // the call fail.
    std::function<void(const std::string& member)> beforeCall = [](const std::string&) {};

    // Enters the members of an object. "Item" is meant when the object itself is called.
    void Enter(MemberTable& table, const std::string& object, const HostMembers& members) const;
    HostObject Object(const std::string& name, const HostMembers& members) const;
    // A collection whose "Item" counts from `first`; `more` are its other members.
    HostObject Collection(const std::string& name, int first, std::function<int()> count,
                          std::function<HostObject(int index)> item, HostMembers more = {}) const;
};

}  // namespace morpho::test
