#include "windows_com/dispatch_caller.h"

#include "windows_com/com_error.h"
#include "windows_system/wide.h"

namespace morpho {

namespace {

HRESULT FindMember(IDispatch& object, std::string_view name, DISPID& id) {
    std::wstring wide = Wide(name);
    wchar_t* names = wide.data();
    return object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
}

RunTimeError Failure(HRESULT result, std::string_view name, EXCEPINFO& info) {
    if (result == DISP_E_EXCEPTION) return ErrorOf(info);
    const RunTimeError error = ErrorOf(result);
    return {error.Number(), std::string(name) + ": " + error.what()};
}

}  // namespace

Variant DispatchCaller::Get(std::string_view name, const Arguments& arguments) const {
    return Invoke(name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
}

DispatchCaller DispatchCaller::GetDispatch(std::string_view name,
                                           const Arguments& arguments) const {
    return DispatchCaller(ObjectOf(Get(name, arguments)));
}

void DispatchCaller::Put(std::string_view name, const Variant& value) const {
    const bool isObject = value.Type() == VT_DISPATCH;
    Invoke(name, isObject ? DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT,
           {value});
}

Variant DispatchCaller::Call(std::string_view name, const Arguments& arguments) const {
    return Invoke(name, DISPATCH_METHOD, arguments);
}

bool DispatchCaller::Has(std::string_view name) const {
    DISPID id = DISPID_UNKNOWN;
    return object_ && SUCCEEDED(FindMember(*object_.Get(), name, id));
}

Variant DispatchCaller::Invoke(std::string_view name, WORD kind, const Arguments& arguments) const {
    if (!object_)
        throw RunTimeError(ErrorNumber::kObjectNotSet,
                           "Object variable or With block variable not set");
    EXCEPINFO info = {};
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = FindMember(*object_.Get(), name, id);
    if (FAILED(result)) throw Failure(result, name, info);

    // The last argument comes first. They stay ours.
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPID putId = DISPID_PROPERTYPUT;
    const bool puts = (kind & DISPATCH_PROPERTYPUT) != 0;
    DISPPARAMS parameters = {reversed.data(), puts ? &putId : nullptr,
                             static_cast<UINT>(reversed.size()), puts ? 1U : 0U};
    Variant value;
    UINT wrongArgument = 0;
    // The object may lose its last other reference in the call.
    const ComPointer<IDispatch> object = object_;
    result = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                            puts ? nullptr : value.Out(), &info, &wrongArgument);
    if (FAILED(result)) throw Failure(result, name, info);
    return value;
}

DispatchCaller CreateByName(std::string_view progId) {
    CLSID clsid = {};
    ComPointer<IDispatch> object;
    HRESULT result = ::CLSIDFromProgID(Wide(progId).c_str(), &clsid);
    if (SUCCEEDED(result))
        result = ::CoCreateInstance(clsid, nullptr, CLSCTX_SERVER, IID_IDispatch, object.OutVoid());
    if (FAILED(result)) throw CannotCreate(progId, result);
    return DispatchCaller(std::move(object));
}

}  // namespace morpho
