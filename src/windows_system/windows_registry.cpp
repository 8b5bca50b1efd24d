#include "windows_system/windows_registry.h"

#include <algorithm>

#include "windows_system/wide.h"
#include "windows_system/win32.h"

namespace morpho {

namespace {

// Handles of the system have 32 significant bits, and are sign-extended to the width of a pointer.
HKEY KeyOf(RegHandle handle) {
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(handle)));
}

RegHandle HandleOf(HKEY key) {
    return static_cast<RegHandle>(reinterpret_cast<LONG_PTR>(key));
}

bool IsText(DWORD type) {
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ || type == REG_LINK;
}

std::uint32_t AccessOf(RegistryView view) {
    switch (view) {
        case RegistryView::k32Bit:
            return KEY_WOW64_32KEY;
        case RegistryView::k64Bit:
            return KEY_WOW64_64KEY;
        default:
            return 0;
    }
}

}  // namespace

WindowsRegistry::WindowsRegistry(RegistryView view) : view_(AccessOf(view)) {}

std::int32_t WindowsRegistry::OpenKey(RegHandle root, std::string_view path, RegHandle& key) {
    HKEY opened = nullptr;
    const LSTATUS code =
        ::RegOpenKeyExW(KeyOf(root), Wide(path).c_str(), 0, MAXIMUM_ALLOWED | view_, &opened);
    if (code == ERROR_SUCCESS) key = HandleOf(opened);
    return code;
}

std::int32_t WindowsRegistry::CreateKey(RegHandle root, std::string_view path, RegHandle& key) {
    HKEY opened = nullptr;
    const LSTATUS code =
        ::RegCreateKeyExW(KeyOf(root), Wide(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          MAXIMUM_ALLOWED | view_, nullptr, &opened, nullptr);
    if (code == ERROR_SUCCESS) key = HandleOf(opened);
    return code;
}

std::int32_t WindowsRegistry::CloseKey(RegHandle key) {
    return ::RegCloseKey(KeyOf(key));
}

std::int32_t WindowsRegistry::QueryValue(RegHandle key, std::string_view name, RegType& type,
                                         std::vector<std::byte>& data) {
    const std::wstring wideName = Wide(name);
    std::vector<std::byte> bytes;
    DWORD kind = 0;
    DWORD size = 0;
    LSTATUS code = ERROR_MORE_DATA;
    // Another program may make the value longer between two calls.
    while (code == ERROR_MORE_DATA) {
        bytes.resize(size);
        code = ::RegQueryValueExW(KeyOf(key), wideName.c_str(), nullptr, &kind,
                                  reinterpret_cast<BYTE*>(bytes.data()), &size);
        if (code == ERROR_SUCCESS && size > bytes.size()) code = ERROR_MORE_DATA;
    }
    if (code != ERROR_SUCCESS) return code;
    bytes.resize(size);
    type = static_cast<RegType>(kind);
    if (IsText(kind)) {
        std::wstring wide(size / sizeof(wchar_t), L'\0');
        std::copy_n(reinterpret_cast<const char*>(bytes.data()), wide.size() * sizeof(wchar_t),
                    reinterpret_cast<char*>(wide.data()));
        const std::string text = Narrow(wide);
        const auto view = std::as_bytes(std::span(text));
        bytes.assign(view.begin(), view.end());
    }
    data = std::move(bytes);
    return kRegSuccess;
}

std::int32_t WindowsRegistry::SetValue(RegHandle key, std::string_view name, RegType type,
                                       std::span<const std::byte> data) {
    const auto kind = static_cast<DWORD>(type);
    std::wstring wide;
    auto bytes = data;
    if (IsText(kind)) {
        // The call would count a NUL that follows the data, as one that was forgotten.
        wide = Wide({reinterpret_cast<const char*>(data.data()), data.size()}) + L'.';
        bytes = std::as_bytes(std::span(wide)).first((wide.size() - 1) * sizeof(wchar_t));
    }
    return ::RegSetValueExW(KeyOf(key), Wide(name).c_str(), 0, kind,
                            reinterpret_cast<const BYTE*>(bytes.data()),
                            static_cast<DWORD>(bytes.size()));
}

std::int32_t WindowsRegistry::DeleteValue(RegHandle key, std::string_view name) {
    return ::RegDeleteValueW(KeyOf(key), Wide(name).c_str());
}

}  // namespace morpho
