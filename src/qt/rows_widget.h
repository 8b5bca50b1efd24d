#pragma once

#include <QTreeWidget>
#include <functional>

namespace morpho {

// The widget of tree views and list views: rows of which at most one is selected. Reports what a
// person does with the mouse besides changing the selection.
class RowsWidget : public QTreeWidget {
  public:
    explicit RowsWidget(QWidget* parent);

    // The selected item; null when there is none. The current item can differ: it is the one that
    // the keys start from.
    QTreeWidgetItem* Selected() const;
    // Selects the item, or ends the selection.
    void Select(QTreeWidgetItem* item);

    // The selected item is clicked again.
    std::function<void()> clickedAgain;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace morpho
