#include "windows_toolkit/window_text.h"

#include "windows_system/wide.h"

namespace morpho {

std::wstring MarkedCaptionOf(const Control& control) {
    std::string marked;
    const std::string& caption = control.Caption();
    for (std::size_t at = 0; at < caption.size(); ++at) {
        if (at == control.AccessKeyAt() || caption[at] == '&') marked += '&';
        marked += caption[at];
    }
    return Wide(marked);
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return Narrow(text);
}

HINSTANCE ModuleOf(const void* address) {
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        static_cast<LPCWSTR>(address), &module);
    return module;
}

}  // namespace morpho
