#pragma once

#include <vector>

#include "forms/entries_mirror.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

// A list with check boxes: Space, a click on the box or a double click ticks.
class CheckListPeer : public ControlPeer {
  public:
    CheckListPeer(CheckListBox& list, HWND parent, const PeerContext& context);

    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void WriteEntries();
    void WriteChecks();
    void WritePosition();
    void FillWidth();
    void Changed(const NMLISTVIEW& change);
    void Clicked(const NMITEMACTIVATE& click, bool twice);
    int TopRow() const;

    CheckListBox& list_;
    EntriesMirror entries_;
    std::vector<bool> checked_;  // as the window shows it
    int top_ = 0;                // the top row that model and window agreed on last
};

}  // namespace morpho
