#include "windows_system/wide.h"

#include "windows_system/win32.h"

namespace morpho {

std::wstring Wide(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(
                          ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
                      L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(),
                          static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const auto convert = [&](char* into, int size) {
        return ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, into, size, nullptr, nullptr);
    };
    std::string narrow(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(narrow.data(), static_cast<int>(narrow.size()));
    return narrow;
}

}  // namespace morpho
