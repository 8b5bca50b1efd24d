#pragma once

#include "forms/entries_mirror.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

class ListBoxPeer : public ControlPeer {
  public:
    ListBoxPeer(ListBox& list, HWND parent, const PeerContext& context);

    void OnCommand(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    int Selected() const;

    ListBox& list_;
    EntriesMirror entries_;
};

}  // namespace morpho
