#pragma once

#include "forms/controls.h"
#include "qt/control_peer.h"

namespace morpho {

// A group box whose title stands on its border; without a caption it is a container that is not
// seen.
class FramePeer : public ControlPeer {
  public:
    FramePeer(Frame& frame, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;
};

}  // namespace morpho
