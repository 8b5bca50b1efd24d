#pragma once

#include "forms/controls.h"
#include "windows_com/com_pointer.h"
#include "windows_toolkit/control_peer.h"

// It needs <windows.h> before it.
#include <exdisp.h>

namespace morpho {

// The system's browser control. Where there is none the place stays blank.
class WebBrowserPeer : public ControlPeer {
  public:
    WebBrowserPeer(WebBrowser& browser, HWND parent, const PeerContext& context);
    ~WebBrowserPeer() override;

    // Null where there is none.
    const ComPointer<IWebBrowser2>& Browser() const { return control_; }

    bool IsLoading() const;

    // Whether the page takes this key.
    bool TranslateKey(MSG& message);

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void Embed();
    void Navigate();
    void Reload(bool completely);
    void Fill();

    WebBrowser& browser_;
    ComPointer<IWebBrowser2> control_;
};

// Lets the page that has the focus, around this message's window, take a key.
bool TranslateForPage(MSG& message);

// Whether a page in this window is not yet shown as a whole.
bool IsPageLoading(HWND window);

}  // namespace morpho
