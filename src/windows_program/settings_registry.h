#pragma once

#include <map>
#include <optional>

#include "shared/memory_registry.h"
#include "windows_system/windows_registry.h"

namespace morpho {

// The described machine in memory, and the user's settings in the registry of Windows, where the
// add-ins in FrontPage keep them, too.
class SettingsRegistry : public MemoryRegistry {
  public:
    explicit SettingsRegistry(const RegistryData& machine) : MemoryRegistry(machine) {}

    std::int32_t OpenKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CreateKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CloseKey(RegHandle key) override;
    std::int32_t QueryValue(RegHandle key, std::string_view name, RegType& type,
                            std::vector<std::byte>& data) override;
    std::int32_t SetValue(RegHandle key, std::string_view name, RegType type,
                          std::span<const std::byte> data) override;
    std::int32_t DeleteValue(RegHandle key, std::string_view name) override;

  private:
    // The key of Windows that one of our handles means; nothing for a key in memory.
    std::optional<RegHandle> KeyOfWindows(RegHandle key) const;
    RegHandle Opened(RegHandle keyOfWindows);

    WindowsRegistry windows_;
    std::map<RegHandle, RegHandle> keys_;  // of Windows, by our handle
    RegHandle lastHandle_ = 0x40000000;    // far from those of MemoryRegistry, which counts from 1
};

}  // namespace morpho
