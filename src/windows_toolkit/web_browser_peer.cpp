#include "windows_toolkit/web_browser_peer.h"

#include "windows_com/bstr.h"
#include "windows_toolkit/browser_site.h"
#include "windows_toolkit/page_address.h"

namespace morpho {

namespace {

VARIANT Number(long value) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
}

// For EnumChildWindows: `answer` is a bool that becomes true.
BOOL CALLBACK TellIfLoading(HWND window, LPARAM answer) {
    const auto* const peer = dynamic_cast<WebBrowserPeer*>(PeerOf(window));
    if (peer != nullptr && peer->IsLoading()) *reinterpret_cast<bool*>(answer) = true;
    return TRUE;
}

}  // namespace

WebBrowserPeer::WebBrowserPeer(WebBrowser& browser, HWND parent, const PeerContext& context)
    : ControlPeer(browser, parent, context, WC_STATICW, SS_WHITERECT | WS_CLIPCHILDREN),
      browser_(browser) {
    Embed();
}

// The browser goes before its window does.
WebBrowserPeer::~WebBrowserPeer() {
    const auto object = control_.As<IOleObject>();
    if (!object) return;
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
}

// A failure leaves the place blank.
void WebBrowserPeer::Embed() {
    ComPointer<IOleObject> object;
    if (FAILED(CoCreateInstance(CLSID_WebBrowser, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject,
                                object.OutVoid())))
        return;
    const ComPointer<BrowserSite> site = MakeComObject<BrowserSite>(Window());
    RECT place;
    GetClientRect(Window(), &place);
    if (FAILED(object->SetClientSite(site.Get())) ||
        FAILED(
            object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site.Get(), 0, Window(), &place))) {
        object->SetClientSite(nullptr);
        return;
    }
    control_ = object.As<IWebBrowser2>();
    // Its own messages would stand in the way of the editor.
    if (control_) control_->put_Silent(VARIANT_TRUE);
}

void WebBrowserPeer::WriteOwn(Aspects changed) {
    if (!control_) return;
    if (changed & aspect::kPlace) Fill();
    if (browser_.Address().empty()) return;
    if (changed & aspect::kAddress) {
        Navigate();
    } else if (changed & (aspect::kReload | aspect::kReloadCompletely)) {
        Reload((changed & aspect::kReloadCompletely) != 0);
    }
}

bool WebBrowserPeer::IsLoading() const {
    if (!control_ || browser_.Address().empty()) return false;
    READYSTATE state = READYSTATE_UNINITIALIZED;
    control_->get_ReadyState(&state);
    return state != READYSTATE_COMPLETE;
}

void WebBrowserPeer::Navigate() {
    const Bstr address(PageAddress(browser_.Address()));
    VARIANT page{};
    page.vt = VT_BSTR;
    page.bstrVal = address.Get();
    VARIANT flags = Number(browser_.NavigationFlags()), none{};
    control_->Navigate2(&page, &flags, &none, &none, &none);
}

// A page that still loads would be shown as it began to load.
void WebBrowserPeer::Reload(bool completely) {
    if (IsLoading()) return Navigate();
    VARIANT level = Number(completely ? REFRESH_COMPLETELY : REFRESH_NORMAL);
    control_->Refresh2(&level);
}

bool WebBrowserPeer::TranslateKey(MSG& message) {
    const auto page = control_.As<IOleInPlaceActiveObject>();
    return page && page->TranslateAccelerator(&message) == S_OK;
}

// The page's own window is inside this one.
std::optional<LRESULT> WebBrowserPeer::OnMessage(UINT message, WPARAM, LPARAM) {
    const auto object = control_.As<IOleObject>();
    RECT place;
    GetClientRect(Window(), &place);
    if (message == WM_SETFOCUS && object)
        object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, nullptr, 0, Window(), &place);
    return {};
}

void WebBrowserPeer::Fill() {
    const auto inPlace = control_.As<IOleInPlaceObject>();
    RECT place;
    GetClientRect(Window(), &place);
    if (inPlace) inPlace->SetObjectRects(&place, &place);
}

bool IsPageLoading(HWND window) {
    bool isLoading = false;
    EnumChildWindows(window, TellIfLoading, reinterpret_cast<LPARAM>(&isLoading));
    return isLoading;
}

bool TranslateForPage(MSG& message) {
    for (HWND at = message.hwnd; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
        auto* const peer = dynamic_cast<WebBrowserPeer*>(PeerOf(at));
        if (peer != nullptr) return peer->TranslateKey(message);
    }
    return false;
}

}  // namespace morpho
