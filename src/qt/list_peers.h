#pragma once

#include <QComboBox>
#include <QListWidget>

#include "forms/entries_mirror.h"
#include "qt/control_peer.h"

namespace morpho {

class ComboBoxPeer : public ControlPeer {
  public:
    ComboBoxPeer(ComboBox& box, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ComboBox& box_;
    QComboBox* widget_;
    EntriesMirror entries_;
};

class ListBoxPeer : public ControlPeer {
  public:
    ListBoxPeer(ListBox& list, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ListBox& list_;
    QListWidget* widget_;
    EntriesMirror entries_;
};

}  // namespace morpho
