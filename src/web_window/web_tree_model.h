#pragma once

#include <QAbstractItemModel>
#include <memory>
#include <string>
#include <vector>

#include "web_host/web_files.h"

namespace morpho {

// The folders and files of a web as a tree. A folder is read when it is expanded first, so that a
// large web opens as fast as a small one. What the host hides (see hidden_entries.h) is left out.
class WebTreeModel : public QAbstractItemModel {
  public:
    // `title` is what the root, the web itself, is called.
    WebTreeModel(std::shared_ptr<const WebFiles> web, const QString& title);
    ~WebTreeModel() override;

    // The names that lead to an entry; empty for the web itself.
    WebPath PathOf(const QModelIndex& index) const;
    bool IsFolder(const QModelIndex& index) const;
    // The folders that have been read, the web itself first.
    std::vector<WebPath> ListedFolders() const;
    // Reads the folders again that have been read; entries that are still there stay expanded.
    void Update();

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

  private:
    struct Node;
    using Nodes = std::vector<std::unique_ptr<Node>>;

    Node* NodeAt(const QModelIndex& index) const;
    QModelIndex IndexOf(const Node& node) const;
    Nodes Read(Node& folder) const;
    void Update(Node& folder);
    static WebPath PathOf(const Node& node);

    std::shared_ptr<const WebFiles> web_;
    QString title_;
    std::unique_ptr<Node> root_;  // not shown; its only child is the web
};

}  // namespace morpho
