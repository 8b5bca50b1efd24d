#pragma once

#include "forms/entries_mirror.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

class ComboBoxPeer : public ControlPeer {
  public:
    ComboBoxPeer(ComboBox& box, HWND parent, const PeerContext& context);

    void OnCommand(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void WriteHeights();
    int Selected() const;
    void Picked();

    ComboBox& box_;
    EntriesMirror entries_;
};

}  // namespace morpho
