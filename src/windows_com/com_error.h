#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "platform/run_time_error.h"
#include "windows_com/com.h"

namespace morpho {

// From the result of a COM call to a run-time error.

// The error for a failed result: the Basic number that the result carries or stands for, else
// kAutomation. The text is `description`, or the system's own when that is empty.
RunTimeError ErrorOf(HRESULT result, std::string_view description = {});
// The error that a call by name described. Frees the texts in `info`.
RunTimeError ErrorOf(EXCEPINFO& info);
// kCannotCreateComponent for an object of this class that could not be created.
RunTimeError CannotCreate(std::string_view progId, HRESULT result);
// Throws the error when the result is a failure.
void Check(HRESULT result);
// The same, with the description that the object left of a failed call of this interface.
void Check(HRESULT result, IUnknown* object, REFIID iid);

// From a C++ exception to the result of a COM call.

// An error that arrives at the caller as this very result.
RunTimeError ResultError(HRESULT result);
HRESULT ResultOf(const RunTimeError& error);
// The exception that is being handled, as a result. With `info`: described there, for a call by
// name; without: left for the caller to ask the system for.
HRESULT ResultOfException(EXCEPINFO* info = nullptr) noexcept;

// Runs the body of a function that COM calls. Nothing is thrown: an exception becomes the result.
template <class Body>
HRESULT Guarded(Body&& body, EXCEPINFO* info = nullptr) noexcept {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
            body();
            return S_OK;
        } else {
            return body();
        }
    } catch (...) {
        return ResultOfException(info);
    }
}

}  // namespace morpho
