#include "qt/list_view_peer.h"

#include <QHeaderView>

#include "qt/qt_text.h"

namespace morpho {

ListViewPeer::ListViewPeer(ListView& list, QWidget* parent, const PeerContext& context)
    : ControlPeer(list, new RowsWidget(parent), context),
      list_(list),
      widget_(static_cast<RowsWidget*>(Widget())) {
    widget_->setRootIsDecorated(false);
    widget_->setItemsExpandable(false);
    QStringList captions;
    for (const ListViewColumn& column : list.Columns())
        captions += ToQt(column.caption);
    widget_->setHeaderLabels(captions);
    for (int at = 0; at < captions.size(); ++at)
        widget_->setColumnWidth(at, ToPixels(list.Columns()[static_cast<std::size_t>(at)].width));
    widget_->clickedAgain = [this] { Clicked(); };
    QObject::connect(widget_, &QTreeWidget::itemSelectionChanged, Receiver(),
                     [this] { Clicked(); });
}

void ListViewPeer::Clicked() {
    Did([this] {
        QTreeWidgetItem* const item = widget_->Selected();
        if (item == nullptr) {
            list_.UserDeselect();
        } else {
            list_.UserClick(widget_->indexOfTopLevelItem(item));
        }
    });
}

void ListViewPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) WriteRows();
    if (changed & aspect::kValue) WriteView();
    if (changed & (aspect::kValue | aspect::kItems))
        widget_->Select(widget_->topLevelItem(list_.SelectedRow()));
}

void ListViewPeer::WriteRows() {
    if (clearings_ != list_.Clearings()) {
        widget_->clear();
        clearings_ = list_.Clearings();
    }
    QList<QTreeWidgetItem*> added;
    for (int at = widget_->topLevelItemCount(); at < list_.RowCount(); ++at) {
        const ListViewRow& row = list_.Row(at);
        QStringList texts{ToQt(row.text)};
        for (const std::string& detail : row.details)
            texts += ToQt(detail);
        added += new QTreeWidgetItem(texts);
        added.back()->setIcon(0, icons_.Icon(row.image));
    }
    widget_->addTopLevelItems(added);
}

void ListViewPeer::WriteView() {
    const bool report = list_.ShownView() == ListView::View::kReport;
    widget_->setHeaderHidden(!report);
    for (int column = 1; column < widget_->columnCount(); ++column)
        widget_->setColumnHidden(column, !report);
}

}  // namespace morpho
