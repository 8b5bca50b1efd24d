#include "windows_com/bstr.h"

#include <new>
#include <utility>

#include "windows_system/wide.h"

namespace morpho {

Bstr::Bstr(std::string_view utf8) {
    const std::wstring wide = Wide(utf8);
    text_ = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (text_ == nullptr) throw std::bad_alloc();
}

BSTR Bstr::Detach() {
    return std::exchange(text_, nullptr);
}

std::string TextOf(BSTR text) {
    if (text == nullptr) return {};
    return Narrow({text, ::SysStringLen(text)});
}

}  // namespace morpho
