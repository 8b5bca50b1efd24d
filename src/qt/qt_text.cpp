#include "qt/qt_text.h"

#include <QTextDocument>

#include "forms/control.h"

namespace morpho {

QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQt(const QString& text) {
    return text.toStdString();
}

QString MarkedCaptionOf(const Control& control) {
    const auto escaped = [](std::string_view text) { return WithoutAccessKey(ToQt(text)); };
    const std::string_view caption = control.Caption();
    const std::size_t at = control.AccessKeyAt();
    if (at == std::string::npos) return escaped(caption);
    return escaped(caption.substr(0, at)) + "&" + escaped(caption.substr(at));
}

QString WithoutAccessKey(QString text) {
    return text.replace("&", "&&");
}

QString PlainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

int ToPixels(int twips) {
    return qRound(static_cast<double>(twips) / kTwipsPerPixel);
}

QRect ToPixels(const Rectangle& twips) {
    const int left = ToPixels(twips.left);
    const int top = ToPixels(twips.top);
    return {left, top, ToPixels(twips.left + twips.width) - left,
            ToPixels(twips.top + twips.height) - top};
}

Rectangle ToTwips(const QRect& pixels) {
    return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel,
            pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

QSize ToPixels(const Size& twips) {
    return {ToPixels(twips.width), ToPixels(twips.height)};
}

Size ToTwips(const QSize& pixels) {
    return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

}  // namespace morpho
