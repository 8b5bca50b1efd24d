#include "qt/picture_peer.h"

#include <QImage>
#include <QPainter>

namespace morpho {

namespace {

class PictureWidget : public QWidget {
  public:
    PictureWidget(bool stretch, QWidget* parent) : QWidget(parent), stretch_(stretch) {}

    void SetPicture(const std::string& encoded) {
        picture_ = QImage::fromData(
            QByteArray::fromRawData(encoded.data(), static_cast<qsizetype>(encoded.size())));
        fitted_ = {};
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (picture_.isNull()) return;
        QPainter painter(this);
        if (!stretch_) {
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(QPoint(0, 0), picture_);
            return;
        }
        // Scaled once for the screen's own pixels, then only copied.
        const QSize needed = size() * devicePixelRatioF();
        if (fitted_.size() != needed)
            fitted_ = picture_.scaled(needed, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(rect(), fitted_);
    }

  private:
    bool stretch_;
    QImage picture_;
    QImage fitted_;
};

}  // namespace

PicturePeer::PicturePeer(PictureBox& box, QWidget* parent, const PeerContext& context)
    : ControlPeer(box, new PictureWidget(box.Stretch(), parent), context), box_(box) {}

void PicturePeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kPicture)
        static_cast<PictureWidget*>(Widget())->SetPicture(box_.Picture());
}

}  // namespace morpho
