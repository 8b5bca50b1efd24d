#pragma once

#include <memory>
#include <string>
#include <vector>

#include "formats/registry_data.h"
#include "support/shown_classes.h"
#include "windows_system/win32.h"

namespace morpho::test {

// For as long as it lives, the registry of this process is one of its own in place of the user's
// and of the machine's, with what is described. Described classes are real ones of the user.
class PrivateRegistry {
  public:
    explicit PrivateRegistry(const RegistryData& described);
    ~PrivateRegistry();
    PrivateRegistry(const PrivateRegistry&) = delete;
    PrivateRegistry& operator=(const PrivateRegistry&) = delete;

    // While the own one is in use, the registering of classes would miss the real one.
    void Use(bool use);

  private:
    std::wstring own_ = L"Software\\Morpho test " + std::to_wstring(GetCurrentProcessId());
    HKEY user_ = nullptr;  // the real one
    HKEY ownUser_ = nullptr;
    HKEY ownMachine_ = nullptr;
    std::vector<std::wstring> classes_;
    std::unique_ptr<ShownClasses> shown_;
};

// The names of the keys below a key; none where it does not exist.
std::vector<std::wstring> KeysBelow(HKEY root, const std::wstring& path);

}  // namespace morpho::test
