#include "windows_server/common_controls.h"

#include "windows_system/wide.h"
#include "windows_system/windows_environment.h"

namespace morpho {

CommonControls::CommonControls() {
    const std::wstring module = Wide(PathOfModule());
    ACTCTXW request = {};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.lpSource = module.c_str();
    request.lpResourceName = MAKEINTRESOURCEW(2);  // where the manifest of a DLL stands
    context_ = ::CreateActCtxW(&request);
}

CommonControls::~CommonControls() {
    if (context_ != INVALID_HANDLE_VALUE) ::ReleaseActCtx(context_);
}

// Without it the windows look older, and work all the same.
CommonControls::Active::Active(const CommonControls& controls)
    : isActive_(controls.context_ != INVALID_HANDLE_VALUE &&
                ::ActivateActCtx(controls.context_, &cookie_)) {}

CommonControls::Active::~Active() {
    if (isActive_) ::DeactivateActCtx(0, cookie_);
}

}  // namespace morpho
