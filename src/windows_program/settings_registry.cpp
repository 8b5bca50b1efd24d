#include "windows_program/settings_registry.h"

#include "text/ignoring_case.h"

namespace morpho {

namespace {

// The editors open a section of their settings by its whole path.
bool IsSettings(RegHandle root, std::string_view path) {
    return root == kCurrentUser &&
           StartsWithIgnoringAsciiCase(path, "Software\\VB and VBA Program Settings\\");
}

}  // namespace

std::int32_t SettingsRegistry::OpenKey(RegHandle root, std::string_view path, RegHandle& key) {
    if (!IsSettings(root, path)) return MemoryRegistry::OpenKey(root, path, key);
    const std::int32_t code = windows_.OpenKey(root, path, key);
    if (code == kRegSuccess) key = Opened(key);
    return code;
}

std::int32_t SettingsRegistry::CreateKey(RegHandle root, std::string_view path, RegHandle& key) {
    if (!IsSettings(root, path)) return MemoryRegistry::CreateKey(root, path, key);
    const std::int32_t code = windows_.CreateKey(root, path, key);
    if (code == kRegSuccess) key = Opened(key);
    return code;
}

std::int32_t SettingsRegistry::CloseKey(RegHandle key) {
    const auto windowsKey = KeyOfWindows(key);
    if (!windowsKey) return MemoryRegistry::CloseKey(key);
    keys_.erase(key);
    return windows_.CloseKey(*windowsKey);
}

std::int32_t SettingsRegistry::QueryValue(RegHandle key, std::string_view name, RegType& type,
                                          std::vector<std::byte>& data) {
    const auto windowsKey = KeyOfWindows(key);
    return windowsKey ? windows_.QueryValue(*windowsKey, name, type, data)
                      : MemoryRegistry::QueryValue(key, name, type, data);
}

std::int32_t SettingsRegistry::SetValue(RegHandle key, std::string_view name, RegType type,
                                        std::span<const std::byte> data) {
    const auto windowsKey = KeyOfWindows(key);
    return windowsKey ? windows_.SetValue(*windowsKey, name, type, data)
                      : MemoryRegistry::SetValue(key, name, type, data);
}

std::int32_t SettingsRegistry::DeleteValue(RegHandle key, std::string_view name) {
    const auto windowsKey = KeyOfWindows(key);
    return windowsKey ? windows_.DeleteValue(*windowsKey, name)
                      : MemoryRegistry::DeleteValue(key, name);
}

std::optional<RegHandle> SettingsRegistry::KeyOfWindows(RegHandle key) const {
    const auto found = keys_.find(key);
    return found == keys_.end() ? std::nullopt : std::optional(found->second);
}

RegHandle SettingsRegistry::Opened(RegHandle keyOfWindows) {
    keys_[++lastHandle_] = keyOfWindows;
    return lastHandle_;
}

}  // namespace morpho
