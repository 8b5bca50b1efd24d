#pragma once

#include "forms/sliders.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

// A scroll bar in the shape of a pair of arrows.
class ArrowsPeer : public ControlPeer {
  public:
    ArrowsPeer(ScrollBar& bar, HWND parent, const PeerContext& context);

    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void Step(int steps);

    ScrollBar& bar_;
};

// A scroll bar with a thumb.
class ScrollBarPeer : public ControlPeer {
  public:
    ScrollBarPeer(ScrollBar& bar, HWND parent, const PeerContext& context);

    void OnScroll(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    int ValueAfter(WORD code) const;

    ScrollBar& bar_;
};

}  // namespace morpho
