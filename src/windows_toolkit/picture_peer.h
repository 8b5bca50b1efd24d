#pragma once

#include <memory>

#include "forms/controls.h"
#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/shown_picture.h"

namespace morpho {

class PicturePeer : public ControlPeer {
  public:
    PicturePeer(PictureBox& box, HWND parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void StartTimer();
    void ShowNextFrame();
    void Paint();
    void PaintPart(HDC device, const RECT& part);
    RECT PicturePlace() const;

    PictureBox& box_;
    std::unique_ptr<ShownPicture> picture_;  // null: nothing to show
};

}  // namespace morpho
