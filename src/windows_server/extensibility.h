#pragma once

#include "windows_com/com.h"

namespace morpho {

// What Office programs tell their add-ins. The order is that of the virtual table; by name the
// members have the numbers 1 to 5.
struct IDTExtensibility2 : IDispatch {
    // `connectMode` and `removeMode` say why; `custom` is an array that no add-in of ours reads.
    virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, int connectMode,
                                                   IDispatch* addIn, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(int removeMode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

}  // namespace morpho

__CRT_UUID_DECL(morpho::IDTExtensibility2, 0xB65AD801, 0xABAF, 0x11D0, 0xBB, 0x8B, 0x00, 0xA0, 0xC9,
                0x0F, 0x27, 0x44)
