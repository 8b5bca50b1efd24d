#include "forms/tree_view.h"

#include <algorithm>

#include "forms/control_visitor.h"
#include "text/ignoring_case.h"

namespace morpho {

const std::string& TreeNode::ShownImage() const {
    return expanded_ && !expandedImage_.empty() ? expandedImage_ : image_;
}

bool TreeNode::IsWithin(const TreeNode& node) const {
    for (const TreeNode* ancestor = parent_; ancestor != nullptr; ancestor = ancestor->parent_)
        if (ancestor == &node) return true;
    return false;
}

void TreeView::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

TreeNode& TreeView::AddNode(TreeNode* parent, const TreeNodeSpec& spec) {
    nodes_.push_back(std::unique_ptr<TreeNode>(new TreeNode(parent, spec)));
    TreeNode* const added = nodes_.back().get();
    std::vector<TreeNode*>& siblings = parent == nullptr ? roots_ : parent->children_;
    auto place = siblings.end();
    if (parent != nullptr && parent->sorted_) {
        place = std::upper_bound(siblings.begin(), siblings.end(), Folded(added->text_),
                                 [](const std::string& folded, const TreeNode* sibling) {
                                     return folded < Folded(sibling->text_);
                                 });
    }
    siblings.insert(place, added);
    Changed(aspect::kItems);
    return *added;
}

// The peer forgets the nodes before they go.
void TreeView::Clear() {
    const std::vector<std::unique_ptr<TreeNode>> cleared = std::move(nodes_);
    nodes_.clear();
    roots_.clear();
    ++clearings_;
    selected_ = nullptr;
    Changed(aspect::kItems);
}

void TreeView::SelectNode(TreeNode* node) {
    if (node == selected_) return;
    SelectNodeQuietly(node);
    if (node != nullptr) RaiseNodeClick();
}

void TreeView::SelectNodeQuietly(TreeNode* node) {
    if (node == selected_) return;
    if (node != nullptr) EnsureVisible(*node);
    selected_ = node;
    Changed(aspect::kValue);
}

void TreeView::EnsureVisible(TreeNode& node) {
    for (TreeNode* ancestor = node.parent_; ancestor != nullptr; ancestor = ancestor->parent_)
        SetExpanded(*ancestor, true);
}

void TreeView::SetExpanded(TreeNode& node, bool expanded) {
    if (expanded == node.expanded_) return;
    node.expanded_ = expanded;
    const bool hides = !expanded && selected_ != nullptr && selected_->IsWithin(node);
    if (hides) selected_ = &node;
    Changed(aspect::kValue);
    if (hides) RaiseNodeClick();
}

bool TreeView::UserClick(TreeNode& node) {
    if (!IsOpenToUser()) return false;
    SelectNodeQuietly(&node);
    RaiseNodeClick();
    return true;
}

bool TreeView::UserExpand(TreeNode& node, bool expanded) {
    if (!IsOpenToUser()) return false;
    SetExpanded(node, expanded);
    return true;
}

void TreeView::RaiseNodeClick() {
    if (nodeClick_) Raise("NodeClick", [this] { nodeClick_(*selected_); });
}

}  // namespace morpho
