#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "windows_com/variant.h"

namespace morpho {

// The arguments of a call by name, in the order of the declaration.
class CallArguments {
  public:
    explicit CallArguments(const DISPPARAMS& parameters) : parameters_(parameters) {}

    std::size_t Count() const { return parameters_.cArgs; }
    // Whether the caller gave this argument.
    bool Has(std::size_t index) const { return index < Count() && !IsMissing((*this)[index]); }
    // Throws ResultError(DISP_E_PARAMNOTOPTIONAL) when there are fewer.
    const VARIANT& operator[](std::size_t index) const;

  private:
    const DISPPARAMS& parameters_;
};

// The members of an object that is called by name: which there are, and what each does. Names
// compare without regard to case.
class MemberTable {
  public:
    using Handler = std::function<Variant(const CallArguments&)>;

    // `parameters` is how many arguments a call may have; the member gets the next free number.
    MemberTable& Method(std::string_view name, std::size_t parameters, Handler call);
    // `put` gets the new value as its last argument; without it the property is read-only.
    // `parameters` counts what a property takes besides, such as an index.
    MemberTable& Property(std::string_view name, std::size_t parameters, Handler get,
                          Handler put = {});
    // The member declared last gets this number: one that is fixed, or DISPID_VALUE for the
    // member that is meant when the object itself is called.
    MemberTable& Numbered(DISPID id);

    // What IDispatch asks for.
    HRESULT FindIds(const LPOLESTR* names, UINT count, DISPID* ids) const;
    HRESULT Invoke(DISPID id, WORD kind, const DISPPARAMS* parameters, VARIANT* result,
                   EXCEPINFO* info) const;

  private:
    struct Member {
        std::wstring name;
        DISPID id;
        std::size_t parameters;
        Handler call;
        Handler get;
        Handler put;
    };
    MemberTable& Add(Member member);

    std::vector<Member> members_;
    DISPID nextId_ = 1;
};

}  // namespace morpho
