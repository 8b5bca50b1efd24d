#pragma once

#include "forms/list_view.h"
#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/standard_icons.h"

namespace morpho {

class ListViewPeer : public ControlPeer {
  public:
    ListViewPeer(ListView& list, HWND parent, const PeerContext& context);

    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void AddColumns();
    void WriteRows();
    void WriteView();
    void Clicked();

    ListView& list_;
    StandardIcons icons_;
    int clearings_ = 0;
    int rows_ = 0;                  // in the window
    bool pressedSelected_ = false;  // the mouse went down on the selected row
};

}  // namespace morpho
