#include "qt/label_peer.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "qt/qt_text.h"

namespace morpho {

namespace {

Qt::Alignment ToQt(Alignment alignment) {
    switch (alignment) {
        case Alignment::kRight:
            return Qt::AlignRight;
        case Alignment::kCenter:
            return Qt::AlignHCenter;
        default:
            return Qt::AlignLeft;
    }
}

// To the keyboard and to a screen reader a link is a button.
class Link : public QAbstractButton {
  public:
    Link(Qt::Alignment alignment, QWidget* parent)
        : QAbstractButton(parent), alignment_(alignment) {
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::StrongFocus);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        QFont underlined = font();
        underlined.setUnderline(true);
        painter.setFont(underlined);
        const int flags = static_cast<int>(alignment_ | Qt::AlignTop) | Qt::TextShowMnemonic;
        style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), text(),
                              isEnabled() ? QPalette::Link : QPalette::WindowText);
        if (!hasFocus()) return;
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = painter.boundingRect(rect(), flags, text()).adjusted(-1, 0, 1, 0) & rect();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QAbstractButton::keyPressEvent(event);
        }
    }

  private:
    Qt::Alignment alignment_;
};

QWidget* MakeWidget(const Label& label, QWidget* parent) {
    if (label.IsLink()) return new Link(ToQt(label.TextAlignment()), parent);
    auto* const widget = new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(ToQt(label.TextAlignment()) | Qt::AlignTop);
    return widget;
}

}  // namespace

LabelPeer::LabelPeer(Label& label, QWidget* parent, const PeerContext& context)
    : ControlPeer(label, MakeWidget(label, parent), context), label_(label) {
    if (auto* const link = qobject_cast<QAbstractButton*>(Widget()))
        QObject::connect(link, &QAbstractButton::clicked, Receiver(),
                         [this] { Did([this] { label_.UserClick(); }); });
}

void LabelPeer::SetBuddy(QWidget* widget) {
    buddy_ = widget;
    Show(aspect::kCaption);
}

void LabelPeer::WriteOwn(Aspects changed) {
    if (auto* const link = qobject_cast<QAbstractButton*>(Widget())) {
        if (changed & aspect::kCaption) link->setText(MarkedCaptionOf(label_));
        return;
    }
    auto* const text = static_cast<QLabel*>(Widget());
    if (changed & aspect::kCaption) {
        // Qt takes "&" for a mark only in a label that leads somewhere.
        const bool leads = buddy_ != nullptr && label_.AccessKey() != '\0';
        text->setBuddy(leads ? buddy_ : nullptr);
        text->setText(leads ? MarkedCaptionOf(label_) : morpho::ToQt(label_.Caption()));
    }
    // A single line that is too long is better cut off than broken.
    if (changed & aspect::kPlace)
        text->setWordWrap(text->height() >= 2 * text->fontMetrics().lineSpacing());
}

}  // namespace morpho
