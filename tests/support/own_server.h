#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/shown_classes.h"
#include "windows_com/com.h"
#include "windows_system/wide.h"
#include "windows_system/windows_environment.h"

namespace morpho::test {

// A COM server that was built beside the test program. Registered while this object lives.
class OwnServer {
  public:
    // `keys` are those of its classes; see ShownClasses.
    OwnServer(const std::wstring& fileName, std::vector<std::wstring> keys)
        : module_(::LoadLibraryW((Wide(FolderOfModule()) + L"\\" + fileName).c_str())) {
        registered_ = Call("DllRegisterServer");
        shown_ = std::make_unique<ShownClasses>(std::move(keys));
    }
    ~OwnServer() {
        shown_.reset();
        Call("DllUnregisterServer");
        ::FreeLibrary(module_);
    }
    OwnServer(const OwnServer&) = delete;
    OwnServer& operator=(const OwnServer&) = delete;

    // What the registration answered.
    HRESULT Registered() const { return registered_; }
    bool CanBeUnloaded() const { return Call("DllCanUnloadNow") == S_OK; }

  private:
    HRESULT Call(const char* name) const {
        const auto function = ::GetProcAddress(module_, name);
        if (function == nullptr) return E_NOINTERFACE;
        return reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)()>(reinterpret_cast<void*>(function))();
    }

    HMODULE module_;
    HRESULT registered_ = E_FAIL;
    std::unique_ptr<ShownClasses> shown_;
};

}  // namespace morpho::test
