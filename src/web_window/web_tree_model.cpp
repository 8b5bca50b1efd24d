#include "web_window/web_tree_model.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>
#include <set>
#include <utility>

#include "qt/qt_text.h"
#include "text/ignoring_case.h"
#include "web_host/hidden_entries.h"

namespace morpho {

struct WebTreeModel::Node {
    Node(std::string itsName, bool folder, Node* above)
        : name(std::move(itsName)), isFolder(folder), parent(above) {}

    int Row() const {
        const auto isThis = [this](const std::unique_ptr<Node>& node) {
            return node.get() == this;
        };
        const auto found = std::find_if(parent->children.begin(), parent->children.end(), isThis);
        return static_cast<int>(found - parent->children.begin());
    }

    std::string name;
    bool isFolder;
    bool isListed = false;
    Node* parent;
    Nodes children;
};

WebTreeModel::WebTreeModel(std::shared_ptr<const WebFiles> web, const QString& title)
    : web_(std::move(web)), title_(title), root_(std::make_unique<Node>("", true, nullptr)) {
    root_->isListed = true;
    root_->children.push_back(std::make_unique<Node>("", true, root_.get()));
}

WebTreeModel::~WebTreeModel() = default;

WebPath WebTreeModel::PathOf(const QModelIndex& index) const {
    return index.isValid() ? PathOf(*NodeAt(index)) : WebPath();
}

WebPath WebTreeModel::PathOf(const Node& node) {
    WebPath path;
    for (const Node* step = &node; step->parent && step->parent->parent; step = step->parent)
        path.insert(path.begin(), step->name);
    return path;
}

bool WebTreeModel::IsFolder(const QModelIndex& index) const {
    return index.isValid() && NodeAt(index)->isFolder;
}

std::vector<WebPath> WebTreeModel::ListedFolders() const {
    std::vector<WebPath> folders;
    std::vector<const Node*> left = {root_->children.front().get()};
    while (!left.empty()) {
        const Node* const node = left.back();
        left.pop_back();
        if (!node->isListed) continue;
        folders.push_back(PathOf(*node));
        for (const auto& child : node->children)
            left.push_back(child.get());
    }
    return folders;
}

WebTreeModel::Nodes WebTreeModel::Read(Node& folder) const {
    Nodes nodes;
    const bool showsHidden = ShowsHiddenEntries(*web_);
    try {
        for (const FolderEntry& entry : web_->OpenFolder(PathOf(folder))->Entries()) {
            const bool isFolder = entry.kind == EntryKind::kFolder;
            if (IsShownEntry(entry, showsHidden))
                nodes.push_back(std::make_unique<Node>(entry.name, isFolder, &folder));
        }
    } catch (const RunTimeError&) {
        return {};  // another program may have removed it
    }
    std::sort(nodes.begin(), nodes.end(), [](const auto& a, const auto& b) {
        if (a->isFolder != b->isFolder) return a->isFolder;
        return Folded(a->name) < Folded(b->name);
    });
    return nodes;
}

void WebTreeModel::Update() {
    Update(*root_->children.front());
}

// Both lists are in the same order, so one walk finds what is gone and what is new.
void WebTreeModel::Update(Node& folder) {
    if (!folder.isListed) return;
    Nodes now = Read(folder);
    const auto sameEntry = [](const Node& a, const Node& b) {
        return a.name == b.name && a.isFolder == b.isFolder;
    };
    const QModelIndex index = IndexOf(folder);
    std::set<std::pair<std::string, bool>> present;
    for (const auto& node : now)
        present.emplace(node->name, node->isFolder);
    for (int row = static_cast<int>(folder.children.size()) - 1; row >= 0; --row) {
        const Node& child = *folder.children[static_cast<std::size_t>(row)];
        if (present.contains({child.name, child.isFolder})) continue;
        beginRemoveRows(index, row, row);
        folder.children.erase(folder.children.begin() + row);
        endRemoveRows();
    }
    for (std::size_t row = 0; row < now.size(); ++row) {
        if (row < folder.children.size() && sameEntry(*folder.children[row], *now[row])) {
            Update(*folder.children[row]);
            continue;
        }
        beginInsertRows(index, static_cast<int>(row), static_cast<int>(row));
        folder.children.insert(folder.children.begin() + static_cast<std::ptrdiff_t>(row),
                               std::move(now[row]));
        endInsertRows();
    }
}

WebTreeModel::Node* WebTreeModel::NodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
}

QModelIndex WebTreeModel::IndexOf(const Node& node) const {
    return node.parent ? createIndex(node.Row(), 0, &node) : QModelIndex();
}

QModelIndex WebTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const Node& node = *NodeAt(parent);
    if (row < 0 || column != 0 || row >= static_cast<int>(node.children.size())) return {};
    return createIndex(row, column, node.children[static_cast<std::size_t>(row)].get());
}

QModelIndex WebTreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? IndexOf(*NodeAt(index)->parent) : QModelIndex();
}

int WebTreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(NodeAt(parent)->children.size());
}

int WebTreeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant WebTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Node& node = *NodeAt(index);
    const bool isWeb = node.parent == root_.get();
    if (role == Qt::DisplayRole) return isWeb ? title_ : ToQt(node.name);
    if (role != Qt::DecorationRole) return {};
    const QStyle::StandardPixmap icon = isWeb           ? QStyle::SP_DirHomeIcon
                                        : node.isFolder ? QStyle::SP_DirIcon
                                                        : QStyle::SP_FileIcon;
    return QApplication::style()->standardIcon(icon);
}

bool WebTreeModel::hasChildren(const QModelIndex& parent) const {
    const Node& node = *NodeAt(parent);
    return node.isFolder && (!node.isListed || !node.children.empty());
}

bool WebTreeModel::canFetchMore(const QModelIndex& parent) const {
    const Node& node = *NodeAt(parent);
    return node.isFolder && !node.isListed;
}

void WebTreeModel::fetchMore(const QModelIndex& parent) {
    Node& node = *NodeAt(parent);
    Nodes children = Read(node);
    node.isListed = true;
    if (children.empty()) return;
    beginInsertRows(parent, 0, static_cast<int>(children.size()) - 1);
    node.children = std::move(children);
    endInsertRows();
}

}  // namespace morpho
