#include "qt/web_browser_peer.h"

#include "qt/page_server.h"

namespace morpho {

WebBrowserPeer::WebBrowserPeer(WebBrowser& browser, QWidget* parent, const PeerContext& context)
    : ControlPeer(browser, new PageView(context.pages.Profile(), parent), context),
      browser_(browser),
      view_(static_cast<PageView*>(Widget())),
      site_(context.pages.NewSite()) {}

WebBrowserPeer::~WebBrowserPeer() {
    Context().pages.Close(site_);
}

void WebBrowserPeer::WriteOwn(Aspects changed) {
    if (browser_.Address().empty()) return;
    if (changed & aspect::kAddress) {
        view_->Open(Context().pages.Open(site_, browser_.Address()));
    } else if (changed & (aspect::kReload | aspect::kReloadCompletely)) {
        view_->Reload();
    }
}

}  // namespace morpho
