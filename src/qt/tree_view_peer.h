#pragma once

#include <map>

#include "forms/tree_view.h"
#include "qt/control_peer.h"
#include "qt/rows_widget.h"
#include "qt/standard_icons.h"

namespace morpho {

class TreeViewPeer : public ControlPeer {
  public:
    TreeViewPeer(TreeView& tree, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    void WriteNodes();
    void WriteState(const TreeNode& node, QTreeWidgetItem& item);
    QTreeWidgetItem* AddItem(TreeNode& node);
    void Clicked();
    void Expanded(QTreeWidgetItem* item, bool expanded);

    TreeView& tree_;
    RowsWidget* widget_;
    StandardIcons icons_;
    std::map<const TreeNode*, QTreeWidgetItem*> items_;
    std::map<const QTreeWidgetItem*, TreeNode*> nodes_;
    int clearings_ = 0;
};

}  // namespace morpho
