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

QString MnemonicText::Marked() const {
    const auto escaped = [](QString text) { return text.replace("&", "&&"); };
    if (position < 0) return escaped(plain);
    return escaped(plain.left(position)) + "&" + escaped(plain.mid(position));
}

namespace {

int FindKey(const QString& text, QChar key) {
    for (int at = 0; at < text.size(); ++at) {
        const bool wordStart = at == 0 || !text[at - 1].isLetterOrNumber();
        if (wordStart && text[at].toLower() == key) return at;
    }
    return static_cast<int>(text.indexOf(key, 0, Qt::CaseInsensitive));
}

}  // namespace

MnemonicText ReadMnemonic(const QString& caption, char accessKey) {
    if (accessKey != 0) return {caption, FindKey(caption, QChar::fromLatin1(accessKey).toLower())};
    MnemonicText read;
    for (int at = 0; at < caption.size(); ++at) {
        const bool mark = caption[at] == u'&' && at + 1 < caption.size();
        if (mark && caption[at + 1] == u'&') {
            ++at;
        } else if (mark && caption[at + 1].isLetterOrNumber()) {
            if (read.position < 0) read.position = static_cast<int>(read.plain.size());
            continue;
        }
        read.plain += caption[at];
    }
    return read;
}

MnemonicText CaptionOf(const Control& control) {
    return ReadMnemonic(ToQt(control.Caption()), control.AccessKey());
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

Size ToTwips(const QSize& pixels) {
    return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

}  // namespace morpho
