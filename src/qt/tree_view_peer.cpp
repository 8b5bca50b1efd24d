#include "qt/tree_view_peer.h"

#include <QHeaderView>

#include "qt/qt_text.h"

namespace morpho {

TreeViewPeer::TreeViewPeer(TreeView& tree, QWidget* parent, const PeerContext& context)
    : ControlPeer(tree, new RowsWidget(parent), context),
      tree_(tree),
      widget_(static_cast<RowsWidget*>(Widget())) {
    widget_->setHeaderHidden(true);
    // As wide as the widest node, so that the tree scrolls sideways.
    widget_->header()->setStretchLastSection(false);
    widget_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    widget_->clickedAgain = [this] { Clicked(); };
    QObject::connect(widget_, &QTreeWidget::itemSelectionChanged, Receiver(),
                     [this] { Clicked(); });
    QObject::connect(widget_, &QTreeWidget::itemExpanded, Receiver(),
                     [this](QTreeWidgetItem* item) { Expanded(item, true); });
    QObject::connect(widget_, &QTreeWidget::itemCollapsed, Receiver(),
                     [this](QTreeWidgetItem* item) { Expanded(item, false); });
}

// A click beside the nodes leaves the selection as it is.
void TreeViewPeer::Clicked() {
    Did([this] {
        const QTreeWidgetItem* const item = widget_->Selected();
        if (item != nullptr) tree_.UserClick(*nodes_.at(item));
    });
}

void TreeViewPeer::Expanded(QTreeWidgetItem* item, bool expanded) {
    Did([&] { tree_.UserExpand(*nodes_.at(item), expanded); });
}

void TreeViewPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) WriteNodes();
    if (changed & aspect::kValue) {
        for (const auto& [node, item] : items_)
            WriteState(*node, *item);
    }
    if (changed & (aspect::kValue | aspect::kItems)) {
        const TreeNode* const selected = tree_.SelectedNode();
        widget_->Select(selected == nullptr ? nullptr : items_.at(selected));
    }
}

void TreeViewPeer::WriteNodes() {
    if (clearings_ != tree_.Clearings()) {
        widget_->clear();
        items_.clear();
        nodes_.clear();
        clearings_ = tree_.Clearings();
    }
    for (int index = static_cast<int>(items_.size()); index < tree_.NodeCount(); ++index) {
        TreeNode& node = tree_.Node(index);
        QTreeWidgetItem* const item = AddItem(node);
        items_[&node] = item;
        nodes_[item] = &node;
        WriteState(node, *item);
    }
}

// The nodes come in the order of their adding: some siblings before this one may not be here yet.
QTreeWidgetItem* TreeViewPeer::AddItem(TreeNode& node) {
    QTreeWidgetItem* const parent =
        node.Parent() == nullptr ? widget_->invisibleRootItem() : items_.at(node.Parent());
    const auto& siblings = node.Parent() == nullptr ? tree_.Roots() : node.Parent()->Children();
    int row = 0;
    for (auto sibling = siblings.begin(); *sibling != &node; ++sibling)
        row += static_cast<int>(items_.count(*sibling));
    auto* const item = new QTreeWidgetItem({ToQt(node.Text())});
    parent->insertChild(row, item);
    return item;
}

void TreeViewPeer::WriteState(const TreeNode& node, QTreeWidgetItem& item) {
    if (item.isExpanded() != node.IsExpanded()) item.setExpanded(node.IsExpanded());
    // A row whose icon is set is laid out again.
    const QIcon& icon = icons_.Icon(node.ShownImage());
    if (item.icon(0).cacheKey() != icon.cacheKey()) item.setIcon(0, icon);
}

}  // namespace morpho
