#pragma once

#include "windows_com/com_object.h"
#include "windows_com/member_table.h"

namespace morpho {

// A COM object whose members are called by name. `First` is IDispatch or derived from it: then the
// members are called through its virtual table, too.
template <class First = IDispatch, class... Others>
class DispatchObject : public ComObject<First, Others...> {
  public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (info != nullptr) *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        return members_.FindIds(names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* info, UINT*) override {
        const ComPointer<First> alive(this);  // whatever the call releases
        return members_.Invoke(id, kind, parameters, result, info);
    }

  protected:
    // To be filled by the constructor of the class.
    MemberTable& Members() { return members_; }

  private:
    MemberTable members_;
};

}  // namespace morpho
