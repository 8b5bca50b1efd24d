#include "qt/button_peers.h"

#include <QKeyEvent>
#include <QShortcut>
#include <algorithm>

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

// Leaves its state to the model: a click that the model refuses must not end the choice of another
// button.
class RadioButton : public QRadioButton {
  public:
    using QRadioButton::QRadioButton;

  protected:
    void nextCheckState() override {}
    // The group is one tab stop, its chosen button. Qt knows that only of a choice made by a click.
    void focusInEvent(QFocusEvent* event) override {
        const bool byTab =
            event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        QRadioButton* const chosen = byTab ? Chosen() : nullptr;
        if (chosen != nullptr && chosen != this) {
            chosen->setFocus(event->reason());
        } else {
            QRadioButton::focusInEvent(event);
        }
    }

  private:
    QRadioButton* Chosen() const {
        const auto group =
            parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
        const auto chosen =
            std::find_if(group.begin(), group.end(), [](const QRadioButton* button) {
                return button->isChecked() && button->isEnabled() && button->isVisible();
            });
        return chosen == group.end() ? nullptr : *chosen;
    }
};

QKeySequence ToQt(const Shortcut& shortcut) {
    const int key = shortcut.IsFunctionKey() ? Qt::Key_F1 + shortcut.FunctionNumber() - 1
                                             : Qt::Key_A + shortcut.key - 'A';
    return shortcut.modifier == Shortcut::Modifier::kControl ? QKeySequence(Qt::CTRL | Qt::Key(key))
                                                             : QKeySequence(key);
}

}  // namespace

CommandButtonPeer::CommandButtonPeer(CommandButton& button, QWidget* parent,
                                     const PeerContext& context)
    : ControlPeer(button, new PushButton(parent), context),
      button_(button),
      widget_(static_cast<QPushButton*>(Widget())) {
    // Qt would make any other button the default one where the form has none.
    widget_->setAutoDefault(false);
    widget_->setDefault(button.IsDefault());
    QObject::connect(widget_, &QPushButton::clicked, Receiver(),
                     [this] { Did([this] { button_.UserClick(); }); });
    if (button.ShortcutKey().IsNone()) return;
    // Not QPushButton::setShortcut, which the caption's access key uses.
    auto* const shortcut = new QShortcut(ToQt(button.ShortcutKey()), widget_);
    shortcut->setContext(Qt::WindowShortcut);
    QObject::connect(shortcut, &QShortcut::activated, Receiver(), [this] { widget_->click(); });
}

void CommandButtonPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption) widget_->setText(MarkedCaptionOf(button_));
}

CheckBoxPeer::CheckBoxPeer(CheckBox& box, QWidget* parent, const PeerContext& context)
    : ControlPeer(box, new QCheckBox(parent), context),
      box_(box),
      widget_(static_cast<QCheckBox*>(Widget())) {
    QObject::connect(widget_, &QCheckBox::clicked, Receiver(),
                     [this](bool checked) { Did([&] { box_.UserSet(checked); }); });
}

void CheckBoxPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption) widget_->setText(MarkedCaptionOf(box_));
    if (changed & aspect::kValue) widget_->setChecked(box_.Value());
}

OptionButtonPeer::OptionButtonPeer(OptionButton& option, QWidget* parent,
                                   const PeerContext& context)
    : ControlPeer(option, new RadioButton(parent), context),
      option_(option),
      widget_(static_cast<QRadioButton*>(Widget())) {
    QObject::connect(widget_, &QRadioButton::clicked, Receiver(),
                     [this] { Did([this] { option_.UserClick(); }); });
}

void OptionButtonPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption) widget_->setText(MarkedCaptionOf(option_));
    if (!(changed & aspect::kValue)) return;
    // The chosen button of an exclusive group cannot be unchecked.
    widget_->setAutoExclusive(false);
    widget_->setChecked(option_.Value());
    widget_->setAutoExclusive(true);
}

}  // namespace morpho
