#pragma once

#include "forms/controls.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

// Text, or a link that mouse and keys press.
class LabelPeer : public ControlPeer {
  public:
    LabelPeer(Label& label, HWND parent, const PeerContext& context);
    ~LabelPeer() override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    std::optional<LRESULT> OnLinkMessage(UINT message, WPARAM wide);
    void Paint();
    UINT Format(int lineHeight) const;
    RECT Area() const;
    COLORREF TextColour() const;

    Label& label_;
    HFONT underlined_ = nullptr;
};

}  // namespace morpho
