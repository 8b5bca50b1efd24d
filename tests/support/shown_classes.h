#pragma once

#include <string>
#include <vector>

#include "windows_system/win32.h"

namespace morpho::test {

// Lets COM find classes that are registered for the current user, while this object lives: Wine
// looks among the computer's alone. On Windows it changes nothing.
class ShownClasses {
  public:
    // The keys of the classes, below "Software\Classes": "CLSID\{...}", and the programmatic ones.
    explicit ShownClasses(std::vector<std::wstring> keys) {
        const bool isWine =
            ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
        if (isWine) keys_ = std::move(keys);
        for (const std::wstring& key : keys_) {
            HKEY from = nullptr;
            HKEY to = nullptr;
            ::RegOpenKeyExW(HKEY_CURRENT_USER, Below(key).c_str(), 0, KEY_READ, &from);
            ::RegCreateKeyW(HKEY_LOCAL_MACHINE, Below(key).c_str(), &to);
            ::RegCopyTreeW(from, nullptr, to);
            ::RegCloseKey(from);
            ::RegCloseKey(to);
        }
    }
    ~ShownClasses() {
        for (const std::wstring& key : keys_)
            ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, Below(key).c_str());
    }
    ShownClasses(const ShownClasses&) = delete;
    ShownClasses& operator=(const ShownClasses&) = delete;

  private:
    static std::wstring Below(const std::wstring& key) { return L"Software\\Classes\\" + key; }

    std::vector<std::wstring> keys_;
};

}  // namespace morpho::test
