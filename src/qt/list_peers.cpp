#include "qt/list_peers.h"

#include <QWheelEvent>

#include "qt/qt_text.h"

namespace morpho {

namespace {

// A wheel that scrolls past a drop-down must not pick another entry.
class DropDown : public QComboBox {
  public:
    using QComboBox::QComboBox;

  protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

}  // namespace

ComboBoxPeer::ComboBoxPeer(ComboBox& box, QWidget* parent, const PeerContext& context)
    : ControlPeer(box, new DropDown(parent), context),
      box_(box),
      widget_(static_cast<QComboBox*>(Widget())) {
    QObject::connect(widget_, &QComboBox::activated, Receiver(),
                     [this](int index) { Did([&] { box_.UserSelect(index); }); });
}

void ComboBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) {
        entries_.Write(
            box_, [this](const std::string& text) { widget_->addItem(ToQt(text)); },
            [this] { widget_->clear(); });
    }
    if (changed & (aspect::kValue | aspect::kItems)) widget_->setCurrentIndex(box_.ListIndex());
}

ListBoxPeer::ListBoxPeer(ListBox& list, QWidget* parent, const PeerContext& context)
    : ControlPeer(list, new QListWidget(parent), context),
      list_(list),
      widget_(static_cast<QListWidget*>(Widget())) {
    QObject::connect(widget_, &QListWidget::currentRowChanged, Receiver(),
                     [this](int row) { Did([&] { list_.UserSelect(row); }); });
}

void ListBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) {
        entries_.Write(
            list_, [this](const std::string& text) { widget_->addItem(ToQt(text)); },
            [this] { widget_->clear(); });
    }
    if (changed & (aspect::kValue | aspect::kItems)) widget_->setCurrentRow(list_.ListIndex());
}

}  // namespace morpho
