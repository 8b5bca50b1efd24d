#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shared/memory_registry.h"

namespace morpho::test {

// The desktop's registry in memory; it counts what is opened and fails when told to.
class FakeRegistry : public MemoryRegistry {
  public:
    int openedKeys = 0;  // ever
    int openKeys = 0;    // and not closed yet
    // While not 0, what writing, or closing, answers.
    std::int32_t writeError = kRegSuccess;
    std::int32_t closeError = kRegSuccess;

    // Puts a value there with its key.
    void Put(RegHandle root, const std::string& path, const std::string& name,
             const std::string& data, RegType type = RegType::kString) {
        if (root == kCurrentUser) {
            user_.Set(std::string(kCurrentUserName) + '\\' + path, {name, type, data});
            return;
        }
        const auto rootName = root == kClassesRoot ? kClassesRootName : kLocalMachineName;
        machine_.Set(std::string(rootName) + '\\' + path, {name, type, data});
        DescribeMachine(machine_);
    }
    // The data of a value of the current user, byte for byte; nothing when it is missing.
    std::optional<std::string> UserText(const std::string& path, const std::string& name) const {
        const auto* value = user_.FindValue(std::string(kCurrentUserName) + '\\' + path, name);
        return value == nullptr ? std::nullopt : std::optional(value->data);
    }

    std::int32_t OpenKey(RegHandle root, std::string_view path, RegHandle& key) override {
        return Counted(MemoryRegistry::OpenKey(root, path, key));
    }
    std::int32_t CreateKey(RegHandle root, std::string_view path, RegHandle& key) override {
        return Counted(MemoryRegistry::CreateKey(root, path, key));
    }
    std::int32_t CloseKey(RegHandle key) override {
        if (closeError != kRegSuccess) return closeError;
        --openKeys;
        return MemoryRegistry::CloseKey(key);
    }

  protected:
    std::int32_t Change(const Work& work) override {
        return writeError != kRegSuccess ? writeError : MemoryRegistry::Change(work);
    }

  private:
    std::int32_t Counted(std::int32_t code) {
        const int opened = code == kRegSuccess ? 1 : 0;
        openedKeys += opened;
        openKeys += opened;
        return code;
    }

    RegistryData machine_;
};

}  // namespace morpho::test
