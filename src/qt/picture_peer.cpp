#include "qt/picture_peer.h"

#include <QImage>
#include <QPainter>

namespace morpho {

namespace {

class PictureWidget : public QWidget {
  public:
    PictureWidget(bool stretch, QWidget* parent) : QWidget(parent), stretch_(stretch) {}

    // An empty text shows nothing. Whether the picture can be shown.
    bool SetPicture(std::string_view encoded) {
        picture_ = QImage::fromData(
            QByteArray::fromRawData(encoded.data(), static_cast<qsizetype>(encoded.size())));
        fitted_ = {};
        update();
        return !picture_.isNull();
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
    if (!(changed & aspect::kPicture)) return;
    // A picture that is too large is not decoded.
    const bool tooLarge = box_.NaturalSize() == Size{};
    const std::string_view encoded = tooLarge ? std::string_view() : box_.Picture();
    if (!static_cast<PictureWidget*>(Widget())->SetPicture(encoded)) box_.PictureFailed();
}

}  // namespace morpho
