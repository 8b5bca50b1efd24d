#pragma once

#include <functional>
#include <map>

#include "formats/registry_data.h"

namespace morpho {

// A registry in memory. The description of the machine is read-only, and so is every key outside
// HKEY_CURRENT_USER.
class MemoryRegistry : public Registry {
  public:
    explicit MemoryRegistry(RegistryData machine = {}, RegistryData user = {});

    // Replaces the description of the machine.
    void DescribeMachine(RegistryData machine) { machine_ = std::move(machine); }

    std::int32_t OpenKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CreateKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CloseKey(RegHandle key) override;
    std::int32_t QueryValue(RegHandle key, std::string_view name, RegType& type,
                            std::vector<std::byte>& data) override;
    // kRegInvalidParameter for a name with control characters; CreateKey does the same.
    std::int32_t SetValue(RegHandle key, std::string_view name, RegType type,
                          std::span<const std::byte> data) override;
    std::int32_t DeleteValue(RegHandle key, std::string_view name) override;

  protected:
    // Changes the user's keys and returns a system error code; on success the changes are kept.
    using Work = std::function<std::int32_t(RegistryData&)>;
    virtual std::int32_t Change(const Work& work);

    RegistryData user_;

  private:
    bool PathOf(RegHandle key, std::string& path) const;
    bool PathBelow(RegHandle root, std::string_view path, std::string& full) const;
    bool Exists(const std::string& path) const;
    // kRegSuccess, or the error code of a key that cannot be written.
    std::int32_t MayWrite(const std::string& path) const;
    RegHandle Opened(const std::string& path);

    RegistryData machine_;
    std::map<RegHandle, std::string> open_;
    RegHandle lastHandle_ = 0;
};

inline constexpr std::int32_t kRegInvalidParameter = 87;

}  // namespace morpho
