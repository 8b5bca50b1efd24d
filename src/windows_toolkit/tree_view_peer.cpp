#include "windows_toolkit/tree_view_peer.h"

#include <windowsx.h>

#include "windows_system/wide.h"

namespace morpho {

namespace {

HTREEITEM ItemAt(HWND tree, LPARAM mouse) {
    TVHITTESTINFO hit{};
    hit.pt = {GET_X_LPARAM(mouse), GET_Y_LPARAM(mouse)};
    SendMessageW(tree, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.flags & TVHT_ONITEM ? hit.hItem : nullptr;
}

}  // namespace

TreeViewPeer::TreeViewPeer(TreeView& tree, HWND parent, const PeerContext& context)
    : ControlPeer(
          tree, parent, context, WC_TREEVIEWW,
          TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP,
          WS_EX_CLIENTEDGE),
      tree_(tree),
      icons_(context.dpi) {
    SendMessageW(Window(), TVM_SETIMAGELIST, TVSIL_NORMAL,
                 reinterpret_cast<LPARAM>(icons_.Images()));
}

std::optional<LRESULT> TreeViewPeer::OnMessage(UINT message, WPARAM, LPARAM low) {
    if (message == WM_LBUTTONDOWN) {
        const HTREEITEM pressed = ItemAt(Window(), low);
        pressedSelected_ = pressed != nullptr && pressed == Selected();
    }
    return {};
}

std::optional<LRESULT> TreeViewPeer::OnNotify(const NMHDR& header) {
    const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
    switch (header.code) {
        case TVN_ITEMEXPANDINGW:
            Report([this] { expanding_ = true; });
            return {};
        case TVN_ITEMEXPANDEDW:
            expanding_ = false;
            Did([&] {
                tree_.UserExpand(*NodeOf(change.itemNew.hItem), change.action == TVE_EXPAND);
            });
            return {};
        case TVN_SELCHANGEDW:
            // An item that is collapsed may take over the selection: the model does that, too.
            if (!expanding_) Clicked();
            return {};
        case NM_CLICK:
            if (pressedSelected_) Clicked();
            return {};
        default:
            return {};
    }
}

void TreeViewPeer::Clicked() {
    Did([this] {
        TreeNode* const node = NodeOf(Selected());
        if (node != nullptr) tree_.UserClick(*node);
    });
}

HTREEITEM TreeViewPeer::Selected() const {
    return reinterpret_cast<HTREEITEM>(SendMessageW(Window(), TVM_GETNEXTITEM, TVGN_CARET, 0));
}

TreeNode* TreeViewPeer::NodeOf(HTREEITEM item) const {
    TVITEMW asked{};
    asked.mask = TVIF_PARAM;
    asked.hItem = item;
    if (item == nullptr ||
        !SendMessageW(Window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)))
        return nullptr;
    return reinterpret_cast<TreeNode*>(asked.lParam);
}

void TreeViewPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) WriteNodes();
    if (changed & aspect::kValue) {
        for (const auto& [node, item] : items_)
            WriteState(*node, item);
    }
    if (!(changed & (aspect::kValue | aspect::kItems))) return;
    const TreeNode* const selected = tree_.SelectedNode();
    const HTREEITEM item = selected == nullptr ? nullptr : items_.at(selected);
    if (item != Selected())
        SendMessageW(Window(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

void TreeViewPeer::WriteNodes() {
    if (clearings_ != tree_.Clearings()) {
        SendMessageW(Window(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        items_.clear();
        clearings_ = tree_.Clearings();
    }
    for (int index = static_cast<int>(items_.size()); index < tree_.NodeCount(); ++index) {
        TreeNode& node = tree_.Node(index);
        items_[&node] = AddItem(node);
        WriteState(node, items_[&node]);
        // An item without children cannot be expanded.
        if (node.Parent() != nullptr) WriteState(*node.Parent(), items_.at(node.Parent()));
    }
}

// The nodes come in the order of their adding: some siblings before this one may not be here yet.
HTREEITEM TreeViewPeer::AddItem(TreeNode& node) {
    std::wstring text = Wide(node.Text());
    TVINSERTSTRUCTW item{};
    item.hParent = node.Parent() == nullptr ? TVI_ROOT : items_.at(node.Parent());
    item.hInsertAfter = TVI_FIRST;
    const auto& siblings = node.Parent() == nullptr ? tree_.Roots() : node.Parent()->Children();
    for (auto sibling = siblings.begin(); *sibling != &node; ++sibling) {
        const auto shown = items_.find(*sibling);
        if (shown != items_.end()) item.hInsertAfter = shown->second;
    }
    item.item.mask = TVIF_TEXT | TVIF_PARAM;
    item.item.pszText = text.data();
    item.item.lParam = reinterpret_cast<LPARAM>(&node);
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(Window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

void TreeViewPeer::WriteState(const TreeNode& node, HTREEITEM item) {
    TVITEMW state{};
    state.mask = TVIF_STATE | TVIF_IMAGE;
    state.stateMask = TVIS_EXPANDED;
    state.hItem = item;
    SendMessageW(Window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&state));
    if (((state.state & TVIS_EXPANDED) != 0) != node.IsExpanded())
        SendMessageW(Window(), TVM_EXPAND, node.IsExpanded() ? TVE_EXPAND : TVE_COLLAPSE,
                     reinterpret_cast<LPARAM>(item));
    const int image = icons_.Index(node.ShownImage());
    if (state.iImage == image) return;
    state.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    state.iImage = state.iSelectedImage = image;
    SendMessageW(Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&state));
}

}  // namespace morpho
