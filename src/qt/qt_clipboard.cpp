#include "qt/qt_clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <memory>

#include "platform/run_time_error.h"

namespace morpho {

namespace {

// Qt's own format: from it Qt makes all picture formats that other programs may ask for. We keep
// such a picture as PNG.
const QString kAnyPicture = QStringLiteral("application/x-qt-image");

std::string Encoded(const QImage& picture, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, format) ? bytes.toStdString() : std::string();
}

}  // namespace

std::vector<ClipboardData> QtClipboard::Contents() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) return {};
    std::vector<ClipboardData> contents;
    for (const QString& format : data->formats()) {
        if (format.startsWith("text/") || format.startsWith("image/"))
            contents.push_back({format.toStdString(), data->data(format).toStdString()});
    }
    if (data->hasImage()) {
        const auto picture = qvariant_cast<QImage>(data->imageData());
        contents.push_back({kAnyPicture.toStdString(), Encoded(picture, "PNG")});
    }
    return contents;
}

void QtClipboard::SetContents(const std::vector<ClipboardData>& contents) {
    if (contents.empty()) return QGuiApplication::clipboard()->clear();
    auto data = std::make_unique<QMimeData>();
    for (const ClipboardData& one : contents) {
        const QByteArray bytes = QByteArray::fromStdString(one.bytes);
        const QString format = QString::fromStdString(one.format);
        if (format == kAnyPicture) {
            data->setImageData(QImage::fromData(bytes));
        } else {
            data->setData(format, bytes);
        }
    }
    QGuiApplication::clipboard()->setMimeData(data.release());
}

std::string QtClipboard::Picture() const {
    const QImage picture = QGuiApplication::clipboard()->image();
    return picture.isNull() ? std::string() : Encoded(picture, "BMP");
}

void QtClipboard::SetPicture(std::string_view bitmap) {
    const QImage picture = QImage::fromData(
        QByteArrayView(bitmap.data(), static_cast<qsizetype>(bitmap.size())), "BMP");
    if (picture.isNull()) throw RunTimeError(ErrorNumber::kInvalidPicture, "Invalid picture");
    QGuiApplication::clipboard()->setImage(picture);
}

}  // namespace morpho
