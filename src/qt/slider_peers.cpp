#include "qt/slider_peers.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace morpho {

namespace {

// A spin box without the box: the arrows, their keys and the wheel.
class Arrows : public QSpinBox {
  public:
    explicit Arrows(QWidget* parent) : QSpinBox(parent) { lineEdit()->hide(); }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        held_ = true;
        QSpinBox::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        held_ = false;
        QSpinBox::mouseReleaseEvent(event);
    }
    // A handler may give the focus away at every step, which would end the repeating of an arrow
    // that is held down.
    void focusOutEvent(QFocusEvent* event) override {
        if (!held_) QSpinBox::focusOutEvent(event);
    }

  private:
    bool held_ = false;
};

// Qt's scroll bars belong to scroll areas, which handle the keys: alone they do not have the focus,
// and the arrow keys of a horizontal one are exchanged.
class Bar : public QScrollBar {
  public:
    Bar(ScrollBar::Shape shape, QWidget* parent)
        : QScrollBar(shape == ScrollBar::Shape::kHorizontal ? Qt::Horizontal : Qt::Vertical,
                     parent) {
        setFocusPolicy(Qt::StrongFocus);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool horizontal = orientation() == Qt::Horizontal;
        if (horizontal && event->key() == Qt::Key_Right) {
            triggerAction(SliderSingleStepAdd);
        } else if (horizontal && event->key() == Qt::Key_Left) {
            triggerAction(SliderSingleStepSub);
        } else {
            QScrollBar::keyPressEvent(event);
        }
    }
};

}  // namespace

SliderPeer::SliderPeer(Slider& slider, QWidget* parent, const PeerContext& context)
    : ControlPeer(slider, new QSlider(Qt::Horizontal, parent), context),
      slider_(slider),
      widget_(static_cast<QSlider*>(Widget())) {
    // A screen reader sets the value, too, not only the mouse. The base peer's guard suppresses
    // echoes.
    QObject::connect(widget_, &QSlider::valueChanged, Receiver(),
                     [this](int value) { Report([&] { Moved(value); }); });
    QObject::connect(widget_, &QSlider::sliderReleased, Receiver(),
                     [this] { Did([this] { LetGo(widget_->value()); }); });
}

SliderPeer::~SliderPeer() {
    Context().settling.Drop(this);
}

void SliderPeer::Moved(int value) {
    const bool moved = slider_.UserScroll(value);
    Show(aspect::kValue);
    if (moved && !widget_->isSliderDown())
        Context().settling.Hold(this, [this] { return Settle(); });
}

// While a handler runs the slider settles later, at its last value.
void SliderPeer::LetGo(int value) {
    if (!slider_.UserSettle(value)) Context().settling.Hold(this, [this] { return Settle(); });
}

bool SliderPeer::Settle() {
    const bool settled = slider_.UserSettle(slider_.Value());
    Show(aspect::kValue);
    return settled;
}

void SliderPeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kValue)) return;
    const Slider::Range& limits = slider_.Limits();
    widget_->setRange(limits.minimum, limits.maximum);
    widget_->setSingleStep(limits.smallChange);
    widget_->setPageStep(limits.largeChange);
    widget_->setTickInterval(limits.tickFrequency);
    widget_->setTickPosition(limits.tickFrequency > 0 ? QSlider::TicksBelow : QSlider::NoTicks);
    widget_->setValue(slider_.Value());
}

ArrowsPeer::ArrowsPeer(ScrollBar& bar, QWidget* parent, const PeerContext& context)
    : ControlPeer(bar, new Arrows(parent), context),
      bar_(bar),
      widget_(static_cast<QSpinBox*>(Widget())) {
    QObject::connect(widget_, &QSpinBox::valueChanged, Receiver(),
                     [this](int value) { Did([&] { bar_.UserSet(value); }); });
}

void ArrowsPeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kValue)) return;
    const ScrollBar::Range& limits = bar_.Limits();
    // Not without need: setting the range ends the repeating of an arrow that is held down.
    if (widget_->minimum() != limits.minimum || widget_->maximum() != limits.maximum)
        widget_->setRange(limits.minimum, limits.maximum);
    widget_->setSingleStep(limits.smallChange);
    widget_->setValue(bar_.Value());
}

ScrollBarPeer::ScrollBarPeer(ScrollBar& bar, QWidget* parent, const PeerContext& context)
    : ControlPeer(bar, new Bar(bar.BarShape(), parent), context),
      bar_(bar),
      widget_(static_cast<QScrollBar*>(Widget())) {
    QObject::connect(widget_, &QScrollBar::valueChanged, Receiver(),
                     [this](int value) { Did([&] { bar_.UserSet(value); }); });
}

void ScrollBarPeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kValue)) return;
    const ScrollBar::Range& limits = bar_.Limits();
    widget_->setRange(limits.minimum, limits.maximum);
    widget_->setSingleStep(limits.smallChange);
    widget_->setPageStep(limits.largeChange);
    widget_->setValue(bar_.Value());
}

}  // namespace morpho
