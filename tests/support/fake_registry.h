#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace morpho::test {

// A registry in memory. It counts calls and open keys, and fails when told to.
class FakeRegistry : public Registry {
  public:
    // Put a value there with its key. These do not count as calls.
    void PutString(RegHandle root, std::string_view path, std::string_view name,
                   std::string_view text);
    void Put(RegHandle root, std::string_view path, std::string_view name, RegType type,
             std::span<const std::byte> data);

    // The data of a value as text, byte for byte; nothing when it is missing.
    std::optional<std::string> Text(RegHandle root, std::string_view path,
                                    std::string_view name) const;
    int Calls() const { return calls_; }
    int OpenKeys() const { return static_cast<int>(handles_.size()); }

    // From now on writing, or closing, answers this code (0: works again).
    void FailWrites(std::int32_t code) { writeError_ = code; }
    void FailCloses(std::int32_t code) { closeError_ = code; }

    std::int32_t OpenKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CreateKey(RegHandle root, std::string_view path, RegHandle& key) override;
    std::int32_t CloseKey(RegHandle key) override;
    std::int32_t QueryValue(RegHandle key, std::string_view name, RegType& type,
                            std::vector<std::byte>& data) override;
    std::int32_t SetValue(RegHandle key, std::string_view name, RegType type,
                          std::span<const std::byte> data) override;
    std::int32_t DeleteValue(RegHandle key, std::string_view name) override;

  private:
    struct Value {
        RegType type = RegType::kString;
        std::vector<std::byte> data;
    };
    using Values = std::map<std::string, Value>;  // by name in lower case

    // The open key's or root's path in keys_; nothing for an invalid handle.
    std::optional<std::string> PathOf(RegHandle key) const;
    void AddKey(const std::string& path);
    RegHandle NewHandle(const std::string& path);

    std::map<std::string, Values> keys_;  // by path in lower case, the root's number in front
    std::map<RegHandle, std::string> handles_;
    RegHandle lastHandle_ = 0;
    int calls_ = 0;
    std::int32_t writeError_ = kRegSuccess;
    std::int32_t closeError_ = kRegSuccess;
};

}  // namespace morpho::test
