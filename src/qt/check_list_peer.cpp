#include "qt/check_list_peer.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "qt/qt_text.h"

namespace morpho {

namespace {

Qt::CheckState ToQt(bool checked) {
    return checked ? Qt::Checked : Qt::Unchecked;
}

constexpr int kRowGap = 3;  // pixels between two boxes

// Ticks an entry at a double click on its text; clicks on the box are the widget's own.
class TickOnDoubleClick : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override {
        if (event->type() != QEvent::MouseButtonDblClick || OnBox(event, option, index))
            return QStyledItemDelegate::editorEvent(event, model, option, index);
        const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, ToQt(!checked), Qt::CheckStateRole);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowGap);
    }

  private:
    bool OnBox(const QEvent* event, QStyleOptionViewItem option, const QModelIndex& index) const {
        initStyleOption(&option, index);
        const QStyle* const style = option.widget->style();
        const QRect box =
            style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, option.widget);
        return box.contains(static_cast<const QMouseEvent*>(event)->position().toPoint());
    }
};

// Shows the whole text of an entry that is cut off, as a tool tip.
class CheckList : public QListWidget {
  public:
    explicit CheckList(QWidget* parent) : QListWidget(parent) {
        setItemDelegate(new TickOnDoubleClick(this));
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setEditTriggers(NoEditTriggers);
        setUniformItemSizes(true);
        // Entries are long names in a narrow column.
        QFont narrow = font();
        narrow.setStretch(QFont::SemiCondensed);
        setFont(narrow);
    }

  protected:
    bool viewportEvent(QEvent* event) override {
        if (event->type() == QEvent::ToolTip) {
            const auto* const help = static_cast<QHelpEvent*>(event);
            const QListWidgetItem* const item = itemAt(help->pos());
            if (item != nullptr && IsCutOff(item)) {
                QToolTip::showText(help->globalPos(), PlainToolTip(item->text()), viewport(),
                                   visualItemRect(item));
                return true;
            }
        }
        return QListWidget::viewportEvent(event);
    }

  private:
    bool IsCutOff(const QListWidgetItem* item) const {
        return sizeHintForIndex(indexFromItem(item)).width() > viewport()->width();
    }
};

}  // namespace

CheckListPeer::CheckListPeer(CheckListBox& list, QWidget* parent, const PeerContext& context)
    : ControlPeer(list, new CheckList(parent), context),
      list_(list),
      widget_(static_cast<QListWidget*>(Widget())) {
    QObject::connect(widget_, &QListWidget::itemChanged, Receiver(),
                     [this](const QListWidgetItem* item) {
                         const int row = widget_->row(item);
                         const bool checked = item->checkState() == Qt::Checked;
                         Did([&] { list_.UserCheck(row, checked); });
                     });
    QObject::connect(widget_, &QListWidget::currentRowChanged, Receiver(),
                     [this](int row) { Did([&] { list_.UserSelect(row); }); });
    QObject::connect(widget_->verticalScrollBar(), &QScrollBar::valueChanged, Receiver(),
                     [this] { Report([this] { list_.UserScroll(top_ = TopRow()); }); });
}

void CheckListPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) {
        const auto add = [this](const std::string& text) {
            auto* const item = new QListWidgetItem(morpho::ToQt(text));
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            item->setCheckState(Qt::Unchecked);
            widget_->addItem(item);
        };
        entries_.Write(list_, add, [this] {
            widget_->clear();
            top_ = 0;
        });
    }
    if (!(changed & (aspect::kValue | aspect::kItems))) return;
    WriteChecks();
    WritePosition();
}

void CheckListPeer::WriteChecks() {
    for (int row = 0; row < list_.ListCount(); ++row) {
        QListWidgetItem* const item = widget_->item(row);
        const Qt::CheckState state = ToQt(list_.Selected(row));
        if (item->checkState() != state) item->setCheckState(state);
    }
}

void CheckListPeer::WritePosition() {
    widget_->setCurrentRow(list_.ListIndex());
    if (list_.TopIndex() != top_ && list_.TopIndex() < widget_->count())
        widget_->scrollToItem(widget_->item(list_.TopIndex()), QAbstractItemView::PositionAtTop);
    // The end of the list may stop the scrolling earlier, a new current entry may cause it.
    if (!widget_->isVisible()) return;
    top_ = TopRow();
    list_.UserScroll(top_);
}

int CheckListPeer::TopRow() const {
    return std::max(0, widget_->indexAt({1, 1}).row());
}

}  // namespace morpho
