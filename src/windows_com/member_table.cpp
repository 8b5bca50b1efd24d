#include "windows_com/member_table.h"

#include <algorithm>

#include "windows_com/com_error.h"
#include "windows_system/wide.h"

namespace morpho {

namespace {

bool IsPut(WORD kind) {
    return (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
}

bool AreSameName(const std::wstring& one, const wchar_t* other) {
    return ::CompareStringOrdinal(one.c_str(), -1, other, -1, TRUE) == CSTR_EQUAL;
}

}  // namespace

const VARIANT& CallArguments::operator[](std::size_t index) const {
    if (index >= Count()) throw ResultError(DISP_E_PARAMNOTOPTIONAL);
    return parameters_.rgvarg[Count() - 1 - index];
}

MemberTable& MemberTable::Method(std::string_view name, std::size_t parameters, Handler call) {
    return Add({Wide(name), nextId_, parameters, std::move(call), {}, {}});
}

MemberTable& MemberTable::Property(std::string_view name, std::size_t parameters, Handler get,
                                   Handler put) {
    return Add({Wide(name), nextId_, parameters, {}, std::move(get), std::move(put)});
}

MemberTable& MemberTable::Add(Member member) {
    members_.push_back(std::move(member));
    ++nextId_;
    return *this;
}

MemberTable& MemberTable::Numbered(DISPID id) {
    members_.back().id = id;
    nextId_ = std::max(nextId_, id + 1);
    return *this;
}

HRESULT MemberTable::FindIds(const LPOLESTR* names, UINT count, DISPID* ids) const {
    if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    const auto found = std::ranges::find_if(
        members_, [&](const Member& member) { return AreSameName(member.name, names[0]); });
    if (found == members_.end()) return DISP_E_UNKNOWNNAME;
    ids[0] = found->id;
    // The further names are those of parameters, which have none here.
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT MemberTable::Invoke(DISPID id, WORD kind, const DISPPARAMS* parameters, VARIANT* result,
                            EXCEPINFO* info) const {
    if (parameters == nullptr) return E_INVALIDARG;
    const auto member = std::ranges::find(members_, id, &Member::id);
    if (member == members_.end()) return DISP_E_MEMBERNOTFOUND;
    const bool puts = IsPut(kind);
    const Handler* handler = nullptr;
    if (puts)
        handler = &member->put;
    else if ((kind & DISPATCH_METHOD) != 0 && member->call)
        handler = &member->call;
    else if ((kind & DISPATCH_PROPERTYGET) != 0)
        handler = &member->get;
    if (handler == nullptr || !*handler) return DISP_E_MEMBERNOTFOUND;
    if (parameters->cNamedArgs != (puts ? 1U : 0U)) return DISP_E_NONAMEDARGS;
    if (parameters->cArgs > member->parameters + (puts ? 1 : 0)) return DISP_E_BADPARAMCOUNT;
    EXCEPINFO unwanted = {};
    const HRESULT called = Guarded(
        [&] {
            Variant value = (*handler)(CallArguments(*parameters));
            if (result != nullptr) *result = value.Detach();
        },
        info != nullptr ? info : &unwanted);
    ::SysFreeString(unwanted.bstrDescription);
    return called;
}

}  // namespace morpho
