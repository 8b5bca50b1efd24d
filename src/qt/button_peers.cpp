#include "qt/button_peers.h"

#include <QKeyEvent>
#include <QShortcut>

#include "qt/qt_text.h"

namespace morpho {

namespace {

// Enter presses the button that has the focus, default or not.
class PushButton : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QPushButton::keyPressEvent(event);
        }
    }
};

bool IsDefault(ButtonRole role) {
    return role == ButtonRole::kDefault || role == ButtonRole::kDefaultAndCancel;
}

}  // namespace

CommandButtonPeer::CommandButtonPeer(CommandButton& button, QWidget* parent,
                                     const PeerContext& context)
    : ControlPeer(button, new PushButton(parent), context),
      button_(button),
      widget_(static_cast<QPushButton*>(Widget())) {
    // Qt would make any other button the default one where the form has none.
    widget_->setAutoDefault(false);
    widget_->setDefault(IsDefault(button.Role()));
    QObject::connect(widget_, &QPushButton::clicked, Receiver(),
                     [this] { Did([this] { button_.UserClick(); }); });
    if (button.Shortcut().empty()) return;
    // Not the button's own shortcut: its caption's access key takes that.
    auto* const shortcut = new QShortcut(QKeySequence(ToQt(button.Shortcut())), widget_);
    shortcut->setContext(Qt::WindowShortcut);
    QObject::connect(shortcut, &QShortcut::activated, Receiver(), [this] { Press(); });
}

bool CommandButtonPeer::Press() {
    if (!button_.IsOperable()) return false;
    widget_->click();
    return true;
}

bool CommandButtonPeer::IsCancel() const {
    return button_.Role() == ButtonRole::kCancel || button_.Role() == ButtonRole::kDefaultAndCancel;
}

void CommandButtonPeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kCaption)) return;
    widget_->setText(CaptionOf(button_).Marked());
    if (button_.Shortcut().empty()) return;
    const QString toolTip =
        ToQt(button_.ToolTip()).trimmed() + " (" + ToQt(button_.Shortcut()) + ")";
    widget_->setToolTip(PlainToolTip(toolTip.trimmed()));
}

CheckBoxPeer::CheckBoxPeer(CheckBox& box, QWidget* parent, const PeerContext& context)
    : ControlPeer(box, new QCheckBox(parent), context),
      box_(box),
      widget_(static_cast<QCheckBox*>(Widget())) {
    QObject::connect(widget_, &QCheckBox::clicked, Receiver(),
                     [this](bool checked) { Did([&] { box_.UserSet(checked); }); });
}

void CheckBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption) widget_->setText(CaptionOf(box_).Marked());
    if (changed & aspect::kValue) widget_->setChecked(box_.Value());
}

}  // namespace morpho
