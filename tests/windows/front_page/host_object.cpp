#include "windows/front_page/host_object.h"

#include "windows_com/com_error.h"
#include "windows_com/dispatch_caller.h"

namespace morpho::test {

namespace {

constexpr const char* kDefaultMember = "Item";

class ServedObject : public DispatchObject<> {
  public:
    ServedObject(const HostObjects& host, const std::string& name, const HostMembers& members) {
        host.Enter(Members(), name, members);
    }
};

// "styleSheets(0)" means the default member of what the property "styleSheets" has.
MemberTable::Handler WithDefault(const MemberTable::Handler& get) {
    return [get](const CallArguments& call) {
        if (call.Count() == 0) return get(call);
        const Variant object = get(CallArguments({}));
        return DispatchCaller(ObjectOf(object)).Call(kDefaultMember, {Variant(call[0])});
    };
}

}  // namespace

void HostObjects::Enter(MemberTable& table, const std::string& object,
                        const HostMembers& members) const {
    for (const HostMember& member : members) {
        const auto hooked = [&](const MemberTable::Handler& run) -> MemberTable::Handler {
            if (!run) return {};
            return [this, full = object + "." + member.name, run](const CallArguments& call) {
                beforeCall(full);
                return run(call);
            };
        };
        if (member.call) {
            table.Method(member.name, member.arguments, hooked(member.call));
        } else if (member.arguments == 0) {
            table.Property(member.name, 1, WithDefault(hooked(member.get)), hooked(member.put));
        } else {
            table.Property(member.name, member.arguments, hooked(member.get));
        }
        if (member.name == std::string_view(kDefaultMember)) table.Numbered(DISPID_VALUE);
    }
}

HostObject HostObjects::Object(const std::string& name, const HostMembers& members) const {
    return MakeComObject<ServedObject>(*this, name, members);
}

HostObject HostObjects::Collection(const std::string& name, int first, std::function<int()> count,
                                   std::function<HostObject(int index)> item,
                                   HostMembers more) const {
    // The number may have any numeric type.
    const auto number = [count] { return static_cast<double>(count()); };
    more.push_back(Get("Count", number));
    more.push_back(Get("length", number));
    more.push_back(Call(kDefaultMember, 1, [=](const CallArguments& call) {
        const int index = IntegerOf(call[0]) - first;
        if (index < 0 || index >= count()) throw ErrorOf(E_INVALIDARG);
        return item(index);
    }));
    return Object(name, more);
}

}  // namespace morpho::test
