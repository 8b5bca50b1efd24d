#pragma once

#include "addin/add_in.h"
#include "windows_com/dispatch_object.h"
#include "windows_server/extensibility.h"
#include "windows_server/loaded_component.h"

namespace morpho {

// An add-in as the host knows it, called through the virtual table or by name. No call fails: what
// goes wrong stands in the log.
class AddInObject : public DispatchObject<IDTExtensibility2> {
  public:
    using AddInFactory = std::function<AddIn*(const Program&)>;

    explicit AddInObject(const AddInFactory& makeAddIn);

    HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, int connectMode,
                                           IDispatch* addIn, SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnDisconnection(int removeMode, SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) override;

  private:
    void Declare(DISPID id, std::string_view name, std::size_t parameters,
                 std::function<HRESULT(const CallArguments&)> tell);

    std::shared_ptr<AddIn> addIn_;
};

}  // namespace morpho
