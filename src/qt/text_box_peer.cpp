#include "qt/text_box_peer.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/qt_text.h"

namespace morpho {

namespace {

// The text box handles Up and Down itself. Every other change of the text is reported once it has
// happened, whether it was typed, pasted or undone.
class LineEdit : public QLineEdit {
  public:
    LineEdit(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool vertical = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
        if (vertical && box_.UserStep(event->key() == Qt::Key_Up ? 1 : -1)) return;
        // With Alt alone a letter is an access key, even one that no control has.
        const auto modifiers = event->modifiers() & (Qt::AltModifier | Qt::ControlModifier);
        if (modifiers == Qt::AltModifier && !event->text().isEmpty()) {
            event->ignore();
        } else {
            QLineEdit::keyPressEvent(event);
        }
    }

  private:
    TextBox& box_;
};

QWidget* MakeWidget(TextBox& box, QWidget* parent) {
    if (box.BoxKind() == TextBox::Kind::kSingleLine) return new LineEdit(box, parent);
    auto* const page = new QPlainTextEdit(parent);
    page->setReadOnly(true);
    page->setTabChangesFocus(true);
    page->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return page;
}

}  // namespace

TextBoxPeer::TextBoxPeer(TextBox& box, QWidget* parent, const PeerContext& context)
    : ControlPeer(box, MakeWidget(box, parent), context),
      line_(qobject_cast<QLineEdit*>(Widget())),
      page_(qobject_cast<QPlainTextEdit*>(Widget())),
      box_(box) {
    if (line_ == nullptr) return;
    QObject::connect(line_, &QLineEdit::textEdited, Receiver(),
                     [this](const QString& text) { Did([&] { box_.UserEdit(FromQt(text)); }); });
}

void TextBoxPeer::WriteOwn(Aspects changed) {
    if ((changed & aspect::kSelectAll) && line_ != nullptr) line_->selectAll();
    if (!(changed & aspect::kValue)) return;
    const QString text = ToQt(box_.Text());
    if (line_ == nullptr) {
        page_->setPlainText(QString(text).remove('\r'));
    } else if (line_->text() != text) {
        // The cursor stays before what it stood before.
        const auto behind = line_->text().size() - line_->cursorPosition();
        line_->setText(text);
        line_->setCursorPosition(static_cast<int>(text.size() - behind));
    }
}

}  // namespace morpho
