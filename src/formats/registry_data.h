#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace morpho {

inline constexpr std::string_view kClassesRootName = "HKEY_CLASSES_ROOT";
inline constexpr std::string_view kCurrentUserName = "HKEY_CURRENT_USER";
inline constexpr std::string_view kLocalMachineName = "HKEY_LOCAL_MACHINE";

struct RegistryValue {
    std::string name;  // empty: the key's default value
    RegType type = RegType::kString;
    std::string data;  // bytes; UTF-8 for the string types
};

struct RegistryKey {
    std::string path;                             // from the root's name on, as spelled
    std::map<std::string, RegistryValue> values;  // by folded name
};

// Keys and values in memory. Paths are full ("HKEY_CURRENT_USER\Software"); paths and names are
// found without regard to case and keep their first spelling.
class RegistryData {
  public:
    const RegistryKey* Find(std::string_view path) const;
    // Null when there is no such key or value.
    const RegistryValue* FindValue(std::string_view path, std::string_view name) const;

    // The key, created with its parents when missing.
    RegistryKey& Add(std::string_view path);
    // Sets the value, creating its key when missing.
    void Set(std::string_view path, RegistryValue value);
    // False when there was no such value.
    bool RemoveValue(std::string_view path, std::string_view name);
    // Removes the key with all below it.
    void RemoveKey(std::string_view path);

    // By folded path: a key comes before those below it.
    const std::map<std::string, RegistryKey>& Keys() const { return keys_; }

  private:
    std::map<std::string, RegistryKey> keys_;
};

}  // namespace morpho
