#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace morpho {

struct TreeNodeSpec {
    std::string_view text;
    // The names of its images ("ClosedFolder", "OpenFolder"), which the toolkit maps to icons;
    // empty: none. The second is for an expanded node; empty: the first.
    std::string_view image = {};
    std::string_view expandedImage = {};
    // Whether its children stand in alphabetical order without regard to case.
    bool sorted = false;
};

// A node of a tree. It belongs to the tree and lives until the tree is cleared or goes.
class TreeNode {
  public:
    const std::string& Text() const { return text_; }
    // Null for a root.
    TreeNode* Parent() const { return parent_; }
    const std::vector<TreeNode*>& Children() const { return children_; }
    bool IsExpanded() const { return expanded_; }
    // The name of the image that the node shows now.
    const std::string& ShownImage() const;
    bool IsWithin(const TreeNode& node) const;

  private:
    friend class TreeView;
    TreeNode(TreeNode* parent, const TreeNodeSpec& spec)
        : parent_(parent),
          text_(spec.text),
          image_(spec.image),
          expandedImage_(spec.expandedImage),
          sorted_(spec.sorted) {}

    TreeNode* parent_;
    std::string text_;
    std::string image_;
    std::string expandedImage_;
    bool sorted_;
    bool expanded_ = false;
    std::vector<TreeNode*> children_;
};

// A tree of nodes, of which one is selected. The selected node is always in sight: its ancestors
// are expanded.
class TreeView : public Control {
  public:
    // A node was clicked, also the selected one, or was selected by key or in code.
    using NodeHandler = std::function<void(TreeNode& node)>;
    TreeView(Container& parent, const ControlSpec& spec, NodeHandler nodeClick = {})
        : Control(parent, spec), nodeClick_(std::move(nodeClick)) {}

    // Adds a node, collapsed, among the children of `parent`; null: as a root.
    TreeNode& AddNode(TreeNode* parent, const TreeNodeSpec& spec);
    void Clear();
    const std::vector<TreeNode*>& Roots() const { return roots_; }
    // The nodes of all depths, in the order of their adding.
    int NodeCount() const { return static_cast<int>(nodes_.size()); }
    TreeNode& Node(int index) const { return *nodes_.at(static_cast<std::size_t>(index)); }
    // Counts the calls of Clear: as long as it stays the same, nodes are only added.
    int Clearings() const { return clearings_; }

    // Null when no node is selected. Selecting another one expands its ancestors and raises
    // NodeClick; null ends the selection and raises nothing.
    TreeNode* SelectedNode() const { return selected_; }
    void SelectNode(TreeNode* node);
    void SelectNodeQuietly(TreeNode* node);
    // Expands the ancestors.
    void EnsureVisible(TreeNode& node);
    // Collapsing an ancestor of the selected node selects that ancestor.
    void SetExpanded(TreeNode& node, bool expanded);

    bool UserClick(TreeNode& node);
    bool UserExpand(TreeNode& node, bool expanded);
    void Accept(ControlVisitor& visitor) override;

  private:
    void RaiseNodeClick();

    NodeHandler nodeClick_;
    std::vector<std::unique_ptr<TreeNode>> nodes_;
    std::vector<TreeNode*> roots_;
    int clearings_ = 0;
    TreeNode* selected_ = nullptr;
};

}  // namespace morpho
