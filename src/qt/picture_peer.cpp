#include "qt/picture_peer.h"

#include <QBuffer>
#include <QImage>
#include <QMovie>
#include <QPainter>
#include <memory>

namespace morpho {

namespace {

class PictureWidget : public QWidget {
  public:
    PictureWidget(bool stretch, QWidget* parent) : QWidget(parent), stretch_(stretch) {}

    // An empty text shows nothing. Whether the picture can be shown.
    bool SetPicture(std::string_view encoded) {
        movie_.reset();
        const auto bytes =
            QByteArray::fromRawData(encoded.data(), static_cast<qsizetype>(encoded.size()));
        Show(QImage::fromData(bytes));
        if (encoded.starts_with("GIF8")) PlayIfAnimated(bytes);
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
    // An animation with the bytes that it reads, frame by frame.
    struct Movie {
        explicit Movie(const QByteArray& encoded) {
            buffer.setData(encoded.constData(), static_cast<int>(encoded.size()));
            buffer.open(QIODevice::ReadOnly);
            player.setDevice(&buffer);
        }
        QBuffer buffer;
        QMovie player;
    };

    void Show(const QImage& picture) {
        picture_ = picture;
        fitted_ = {};
        update();
    }

    void PlayIfAnimated(const QByteArray& encoded) {
        auto movie = std::make_unique<Movie>(encoded);
        if (movie->player.frameCount() < 2) return;
        movie_ = std::move(movie);
        connect(&movie_->player, &QMovie::frameChanged, this, [this] {
            const QImage frame = movie_->player.currentImage();
            if (!frame.isNull()) Show(frame);
        });
        movie_->player.start();
    }

    bool stretch_;
    QImage picture_;
    QImage fitted_;
    std::unique_ptr<Movie> movie_;  // null for a still picture
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
