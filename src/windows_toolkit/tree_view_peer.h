#pragma once

#include <map>

#include "forms/tree_view.h"
#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/standard_icons.h"

namespace morpho {

class TreeViewPeer : public ControlPeer {
  public:
    TreeViewPeer(TreeView& tree, HWND parent, const PeerContext& context);

    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    void WriteNodes();
    void WriteState(const TreeNode& node, HTREEITEM item);
    HTREEITEM AddItem(TreeNode& node);
    HTREEITEM Selected() const;
    TreeNode* NodeOf(HTREEITEM item) const;
    void Clicked();

    TreeView& tree_;
    StandardIcons icons_;
    std::map<const TreeNode*, HTREEITEM> items_;
    int clearings_ = 0;
    bool expanding_ = false;        // an item is being expanded or collapsed
    bool pressedSelected_ = false;  // the mouse went down on the selected item
};

}  // namespace morpho
