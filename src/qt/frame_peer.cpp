#include "qt/frame_peer.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyle>

#include "qt/look.h"
#include "qt/qt_text.h"

namespace morpho {

namespace {

constexpr int kTitleIndent = 8;  // pixels
constexpr int kTitleGap = 3;
constexpr double kCornerRadius = 3;

// The styles of today set the title above the box; forms are laid out for a title on its border.
class GroupBox : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (title().isEmpty()) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const int lineTop = fontMetrics().height() / 2;
        const int titleWidth = fontMetrics().size(Qt::TextShowMnemonic, title()).width();
        const QRect titleArea(kTitleIndent, 0, titleWidth, fontMetrics().height());
        const QRect titleHole = titleArea.adjusted(-kTitleGap, 0, kTitleGap, 0);

        painter.setClipRegion(QRegion(rect()).subtracted(titleHole));
        painter.setPen(kBorderColor);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, lineTop + 0.5, -0.5, -0.5),
                                kCornerRadius, kCornerRadius);
        painter.setClipping(false);
        style()->drawItemText(&painter, titleArea, Qt::TextShowMnemonic, palette(), isEnabled(),
                              title(), QPalette::WindowText);
    }
};

}  // namespace

FramePeer::FramePeer(Frame& frame, QWidget* parent, const PeerContext& context)
    : ControlPeer(frame, new GroupBox(parent), context) {}

void FramePeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kCaption)
        static_cast<QGroupBox*>(Widget())->setTitle(MarkedCaptionOf(Model()));
}

}  // namespace morpho
