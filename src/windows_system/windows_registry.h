#pragma once

#include "platform/registry.h"

namespace morpho {

// Which registry a 64-bit Windows shows: 32-bit and 64-bit programs have classes and software keys
// of their own.
enum class RegistryView { kOwn, k32Bit, k64Bit };

// The registry of this computer.
class WindowsRegistry : public Registry {
  public:
    explicit WindowsRegistry(RegistryView view = RegistryView::kOwn);

    std::int32_t OpenKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CreateKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CloseKey(RegHandle key) override;
    std::int32_t QueryValue(RegHandle key, std::string_view name, RegType& type,
                            std::vector<std::byte>& data) override;
    std::int32_t SetValue(RegHandle key, std::string_view name, RegType type,
                          std::span<const std::byte> data) override;
    std::int32_t DeleteValue(RegHandle key, std::string_view name) override;

  private:
    std::uint32_t view_;  // a bit of the access that every opened key is asked for
};

}  // namespace morpho
