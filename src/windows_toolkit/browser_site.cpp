#include "windows_toolkit/browser_site.h"

namespace morpho {

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
