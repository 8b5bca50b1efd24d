#include "support/peer_contract.h"

#include <QListWidget>
#include <QMetaProperty>
#include <QTreeWidget>

#include "qt/on_screen.h"

namespace morpho::test {
namespace {

Qt::Key ToQt(Key key) {
    switch (key) {
        case Key::kSpace:
            return Qt::Key_Space;
        case Key::kBackspace:
            return Qt::Key_Backspace;
        case Key::kLeft:
            return Qt::Key_Left;
        case Key::kRight:
            return Qt::Key_Right;
        case Key::kUp:
            return Qt::Key_Up;
        case Key::kDown:
            return Qt::Key_Down;
        case Key::kHome:
            return Qt::Key_Home;
        case Key::kEnd:
            return Qt::Key_End;
        case Key::kPageDown:
            return Qt::Key_PageDown;
        case Key::k5:
            return Qt::Key_5;
        case Key::k6:
            return Qt::Key_6;
        case Key::kX:
            return Qt::Key_X;
        default:
            return Qt::Key_Period;
    }
}

class QtScreen : public Screen {
  public:
    QtScreen() {
        toolkit_.WhenFormStands([this](Form& form) {
            for (QWidget* const window : QApplication::topLevelWidgets())
                if (window->objectName().toStdString() == form.Name()) window_ = window;
            script_();
            form.Hide();
        });
    }
    Toolkit& TheToolkit() override { return toolkit_; }
    void Show(Form& form, const std::function<void()>& script) override {
        script_ = script;
        form.ShowModal();
    }
    void Press(const Control& control, Key key) override {
        Widget(control).setFocus();
        QTest::keyClick(&Widget(control), ToQt(key));
    }
    void Pause() override { QTest::qWait(120); }
    void BringWithinReach(const Control& control) override {
        Widget(control).parentWidget()->setEnabled(true);
    }
    std::string Shown(const Control& control) override {
        QWidget& widget = Widget(control);
        QString entries;
        if (const auto* const tree = qobject_cast<const QTreeWidget*>(&widget)) {
            for (const QTreeWidgetItem* const item : tree->selectedItems())
                entries += item->text(0);
            return entries.toStdString();
        }
        const auto* const list = qobject_cast<const QListWidget*>(&widget);
        if (list == nullptr)
            return widget.metaObject()->userProperty().read(&widget).toString().toStdString();
        for (int row = 0; row < list->count(); ++row) {
            const QVariant box = list->item(row)->data(Qt::CheckStateRole);
            if (box.isValid() ? box == Qt::Checked : row == list->currentRow())
                entries += list->item(row)->text();
        }
        return entries.toStdString();
    }

  private:
    QWidget& Widget(const Control& control) const {
        return *window_->findChild<QWidget*>(QString::fromStdString(control.Name()));
    }

    FakeFileSystem files_;
    QtToolkit toolkit_{files_, {}, {}};
    std::function<void()> script_;
    QWidget* window_ = nullptr;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PeerContract, QtScreen);

}  // namespace
}  // namespace morpho::test
