#include "qt/rows_widget.h"

#include <QHeaderView>
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
    const QModelIndex pressed = indexAt(event->position().toPoint());
    const bool again = event->button() == Qt::LeftButton && pressed.isValid() &&
                       selectionModel()->isSelected(pressed);
    QTreeWidget::mousePressEvent(event);
    if (!pressed.isValid()) clearSelection();
    if (again && clickedAgain && Selected() != nullptr) clickedAgain();
}

}  // namespace morpho
