#pragma once

#include "forms/controls.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

// A box with a title on its upper edge; without a title it shows nothing of its own.
class FramePeer : public ControlPeer {
  public:
    FramePeer(Frame& frame, HWND parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void Paint();
    void PaintBox(HDC device, const RECT& area);
};

}  // namespace morpho
