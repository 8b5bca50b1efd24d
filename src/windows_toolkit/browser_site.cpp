#include "windows_toolkit/browser_site.h"

#include <mshtmdid.h>

namespace morpho {

namespace {

// Which of the browser's abilities pages get, by the system's own names.
constexpr DWORD kPagesMay = DLCTL_DLIMAGES | DLCTL_NO_SCRIPTS | DLCTL_NO_JAVA |
                            DLCTL_NO_RUNACTIVEXCTLS | DLCTL_NO_DLACTIVEXCTLS | DLCTL_NO_BEHAVIORS |
                            DLCTL_NO_CLIENTPULL | DLCTL_FORCEOFFLINE | DLCTL_SILENT;

}  // namespace

// Two of the interfaces are derived from others that the browser asks for.
void* BrowserSite::FindInterface(REFIID iid) {
    if (iid == IID_IOleWindow) return static_cast<IOleInPlaceSite*>(this);
    if (iid == IID_IOleInPlaceUIWindow) return static_cast<IOleInPlaceFrame*>(this);
    return ComObject::FindInterface(iid);
}

HRESULT BrowserSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    if (moniker != nullptr) *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT BrowserSite::GetContainer(IOleContainer** container) {
    if (container != nullptr) *container = nullptr;
    return E_NOINTERFACE;
}

HRESULT BrowserSite::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT BrowserSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                            UINT*) {
    if (id != DISPID_AMBIENT_DLCONTROL || result == nullptr) return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_I4;
    result->lVal = static_cast<LONG>(kPagesMay);
    return S_OK;
}

HRESULT BrowserSite::GetWindow(HWND* window) {
    if (window == nullptr) return E_POINTER;
    *window = window_;
    return S_OK;
}

HRESULT BrowserSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                      RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info) {
    if (frame == nullptr || document == nullptr || place == nullptr || clip == nullptr ||
        info == nullptr)
        return E_POINTER;
    AddRef();
    *frame = this;
    *document = nullptr;
    GetClientRect(window_, place);
    *clip = *place;
    info->fMDIApp = FALSE;
    info->hwndFrame = window_;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

}  // namespace morpho
