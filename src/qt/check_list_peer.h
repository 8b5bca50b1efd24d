#pragma once

#include <QListWidget>

#include "forms/entries_mirror.h"
#include "qt/control_peer.h"

namespace morpho {

// A list with check boxes: Space, a click on the box or a double click ticks.
class CheckListPeer : public ControlPeer {
  public:
    CheckListPeer(CheckListBox& list, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    void WriteChecks();
    void WritePosition();
    int TopRow() const;

    CheckListBox& list_;
    QListWidget* widget_;
    EntriesMirror entries_;
    int top_ = 0;  // the top row that model and widget agreed on last
};

}  // namespace morpho
