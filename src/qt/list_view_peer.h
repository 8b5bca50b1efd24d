#pragma once

#include "forms/list_view.h"
#include "qt/control_peer.h"
#include "qt/rows_widget.h"
#include "qt/standard_icons.h"

namespace morpho {

// The list view shows the first column alone, without its header.
class ListViewPeer : public ControlPeer {
  public:
    ListViewPeer(ListView& list, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    void WriteRows();
    void WriteView();
    void Clicked();

    ListView& list_;
    RowsWidget* widget_;
    StandardIcons icons_;
    int clearings_ = 0;
};

}  // namespace morpho
