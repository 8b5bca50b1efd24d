#include "windows/front_page/private_registry.h"

#include "text/ignoring_case.h"
#include "windows_system/wide.h"

namespace morpho::test {

namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes\\";

HKEY Created(HKEY root, const std::wstring& path) {
    HKEY key = nullptr;
    RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    return key;
}

void Write(HKEY root, const std::wstring& path, const RegistryKey& key) {
    for (const auto& [folded, value] : key.values) {
        const std::wstring data = Wide(value.data);
        const auto size = static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t));
        RegSetKeyValueW(root, path.c_str(), Wide(value.name).c_str(), REG_SZ, data.c_str(), size);
    }
}

}  // namespace

PrivateRegistry::PrivateRegistry(const RegistryData& described) {
    RegOpenKeyExW(HKEY_CURRENT_USER, nullptr, 0, KEY_ALL_ACCESS, &user_);
    ownUser_ = Created(user_, own_ + L"\\User");
    ownMachine_ = Created(user_, own_ + L"\\Machine");
    for (const auto& [folded, key] : described.Keys()) {
        const std::size_t end = key.path.find('\\');
        if (end == key.path.npos) continue;
        const std::string_view root = std::string_view(key.path).substr(0, end);
        const std::wstring path = Wide(key.path.substr(end + 1));
        if (EqualIgnoringCase(root, kCurrentUserName)) Write(ownUser_, path, key);
        if (EqualIgnoringCase(root, kLocalMachineName)) Write(ownMachine_, path, key);
        if (!EqualIgnoringCase(root, kClassesRootName)) continue;
        if (!key.values.empty()) classes_.push_back(path.substr(0, path.rfind('\\')));
        Write(user_, kClasses + path, key);
    }
    shown_ = std::make_unique<ShownClasses>(classes_);
}

PrivateRegistry::~PrivateRegistry() {
    Use(false);
    shown_.reset();
    for (const std::wstring& path : classes_)
        RegDeleteTreeW(user_, (kClasses + path).c_str());
    for (const HKEY key : {ownUser_, ownMachine_})
        RegCloseKey(key);
    RegDeleteTreeW(user_, own_.c_str());
    RegCloseKey(user_);
}

void PrivateRegistry::Use(bool use) {
    RegOverridePredefKey(HKEY_CURRENT_USER, use ? ownUser_ : nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, use ? ownMachine_ : nullptr);
}

std::vector<std::wstring> KeysBelow(HKEY root, const std::wstring& path) {
    std::vector<std::wstring> names;
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return names;
    wchar_t name[256];
    while (RegEnumKeyW(key, static_cast<DWORD>(names.size()), name, 256) == ERROR_SUCCESS)
        names.emplace_back(name);
    RegCloseKey(key);
    return names;
}

}  // namespace morpho::test
