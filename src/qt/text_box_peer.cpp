#include "qt/text_box_peer.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <utility>

#include "qt/qt_text.h"

namespace morpho {

namespace {

constexpr char32_t kBackspace = 8;

// Asks the text box about every character before it gets in, be it typed or composed.
class FilteredLineEdit : public QLineEdit {
  public:
    FilteredLineEdit(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        const bool backspace = event->key() == Qt::Key_Backspace && !command;
        const bool letter = !command && !event->text().isEmpty() && event->text()[0].isPrint();
        if (backspace ? box_.UserKey(kBackspace) : !letter || Admits(event->text()))
            QLineEdit::keyPressEvent(event);
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        if (!Admits(event->commitString())) event->setCommitString({});
        QLineEdit::inputMethodEvent(event);
    }

  private:
    bool Admits(const QString& text) {
        bool admitted = true;
        for (const char32_t key : text.toUcs4())
            admitted = box_.UserKey(key) && admitted;
        return admitted;
    }

    TextBox& box_;
};

QWidget* MakeWidget(TextBox& box, QWidget* parent) {
    if (box.BoxKind() == TextBox::Kind::kSingleLine) return new FilteredLineEdit(box, parent);
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
    if (!(changed & aspect::kValue)) return;
    const QString text = ToQt(box_.Text());
    if (line_ != nullptr) {
        // Writing moves the cursor to the end, so only what differs is written.
        if (line_->text() != text) line_->setText(text);
    } else {
        page_->setPlainText(QString(text).remove('\r'));
    }
}

}  // namespace morpho
