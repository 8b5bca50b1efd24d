#pragma once

#include "forms/controls.h"
#include "qt/control_peer.h"

namespace morpho {

class PicturePeer : public ControlPeer {
  public:
    PicturePeer(PictureBox& box, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    PictureBox& box_;
};

}  // namespace morpho
