#pragma once

#include <string>

#include "forms/controls.h"
#include "qt/control_peer.h"
#include "qt/page_view.h"

namespace morpho {

class WebBrowserPeer : public ControlPeer {
  public:
    WebBrowserPeer(WebBrowser& browser, QWidget* parent, const PeerContext& context);
    ~WebBrowserPeer() override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    WebBrowser& browser_;
    PageView* view_;
    std::string site_;
};

}  // namespace morpho
