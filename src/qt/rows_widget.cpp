#include "qt/rows_widget.h"

#include <QMouseEvent>

namespace morpho {

RowsWidget::RowsWidget(QWidget* parent) : QTreeWidget(parent) {
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
}

QTreeWidgetItem* RowsWidget::Selected() const {
    const QList<QTreeWidgetItem*> items = selectedItems();
    return items.isEmpty() ? nullptr : items.front();
}

void RowsWidget::Select(QTreeWidgetItem* item) {
    if (item == Selected()) return;
    setCurrentItem(item);
    if (item == nullptr) clearSelection();
}

void RowsWidget::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const QModelIndex pressed = indexAt(at);
    // The arrow that expands a node stands before the node's rectangle.
    const bool again = event->button() == Qt::LeftButton && visualRect(pressed).contains(at) &&
                       selectionModel()->isSelected(pressed);
    QTreeWidget::mousePressEvent(event);
    if (again && clickedAgain && Selected() != nullptr) clickedAgain();
}

}  // namespace morpho
