#include "windows_com/com_error.h"

#include <cstdio>

#include "windows_com/bstr.h"
#include "windows_com/com_pointer.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

ErrorNumber NumberOf(HRESULT result) {
    switch (result) {
        case E_OUTOFMEMORY:
            return ErrorNumber::kOutOfMemory;
        case E_ACCESSDENIED:
            return ErrorNumber::kPermissionDenied;
        case DISP_E_TYPEMISMATCH:
            return ErrorNumber::kTypeMismatch;
        case DISP_E_OVERFLOW:
            return ErrorNumber::kOverflow;
        case REGDB_E_CLASSNOTREG:
        case CO_E_CLASSSTRING:
        case CO_E_DLLNOTFOUND:
        case CO_E_ERRORINDLL:
            return ErrorNumber::kCannotCreateComponent;
        default:
            break;
    }
    // This facility holds the numbers of Basic.
    if (HRESULT_FACILITY(result) == FACILITY_CONTROL)
        return static_cast<ErrorNumber>(HRESULT_CODE(result));
    return ErrorNumber::kAutomation;
}

std::string SystemTextOf(HRESULT result) {
    const std::string text = SystemText(static_cast<DWORD>(result));
    if (!text.empty()) return text;
    char number[40];
    std::snprintf(number, sizeof number, "Automation error 0x%08lX",
                  static_cast<unsigned long>(result));
    return number;
}

RunTimeError CurrentError() {
    try {
        throw;
    } catch (const std::exception& error) {
        return AsRunTimeError(error);
    } catch (...) {
        return {ErrorNumber::kInternal, "Internal error"};
    }
}

void Describe(const RunTimeError& error) {
    ComPointer<ICreateErrorInfo> description;
    if (FAILED(::CreateErrorInfo(description.Out()))) return;
    description->SetDescription(Bstr(error.what()).Get());
    ::SetErrorInfo(0, description.As<IErrorInfo>().Get());
}

// A call by name tells of its own failures, such as a wrong number of arguments, by the result
// alone.
HRESULT Describe(const RunTimeError& error, EXCEPINFO& info) {
    const HRESULT result = ResultOf(error);
    if (HRESULT_FACILITY(result) == FACILITY_DISPATCH) return result;
    info = {};
    info.scode = result;
    info.bstrDescription = Bstr(error.what()).Detach();
    return DISP_E_EXCEPTION;
}

}  // namespace

RunTimeError ErrorOf(HRESULT result, std::string_view description) {
    return {NumberOf(result),
            description.empty() ? SystemTextOf(result) : std::string(description)};
}

RunTimeError ErrorOf(EXCEPINFO& info) {
    if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
    // Either of the two is set; the short one is a number of the object's own.
    const HRESULT result = info.scode != 0 ? info.scode : DISP_E_EXCEPTION;
    const RunTimeError error = ErrorOf(result, TextOf(info.bstrDescription));
    ::SysFreeString(info.bstrDescription);
    ::SysFreeString(info.bstrSource);
    ::SysFreeString(info.bstrHelpFile);
    info = {};
    return error;
}

RunTimeError CannotCreate(std::string_view progId, HRESULT result) {
    return {ErrorNumber::kCannotCreateComponent,
            "Can't create object " + std::string(progId) + ": " + SystemTextOf(result)};
}

void Check(HRESULT result) {
    if (FAILED(result)) throw ErrorOf(result);
}

void Check(HRESULT result, IUnknown* object, REFIID iid) {
    if (SUCCEEDED(result)) return;
    // What an object that does not describe its errors seems to tell is left from an earlier call.
    const auto describes = ComPointer<IUnknown>(object).As<ISupportErrorInfo>();
    ComPointer<IErrorInfo> info;
    Bstr text;
    if (describes && describes->InterfaceSupportsErrorInfo(iid) == S_OK &&
        ::GetErrorInfo(0, info.Out()) == S_OK)
        info->GetDescription(text.Out());
    throw ErrorOf(result, TextOf(text.Get()));
}

RunTimeError ResultError(HRESULT result) {
    return {static_cast<ErrorNumber>(result), SystemTextOf(result)};
}

HRESULT ResultOf(const RunTimeError& error) {
    const int number = static_cast<int>(error.Number());
    if (number < 0) return number;  // it is a result already
    if (error.Number() == ErrorNumber::kOutOfMemory) return E_OUTOFMEMORY;
    return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

HRESULT ResultOfException(EXCEPINFO* info) noexcept {
    try {
        const RunTimeError error = CurrentError();
        if (info != nullptr) return Describe(error, *info);
        Describe(error);
        return ResultOf(error);
    } catch (...) {
        return E_OUTOFMEMORY;  // not even the text found room
    }
}

}  // namespace morpho
