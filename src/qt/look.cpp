#include "qt/look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

namespace morpho {

namespace {

QPalette LightPalette() {
    QPalette palette(QColor(0xf4, 0xf5, 0xf7));
    const QColor text(0x1e, 0x22, 0x27);
    const QColor faint(0x8d, 0x93, 0x9b);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xf0, 0xf1, 0xf3));
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf8, 0xfa));
    palette.setColor(QPalette::Button, QColor(0xf7, 0xf8, 0xfa));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xc4));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x7f, 0x9f, 0xc8));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xb9, 0xbf, 0xc7));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, kLinkColor);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xe8));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    return palette;
}

// The forms are laid out for a sans-serif face as wide as Arial, 11 pixels high.
QFont FormFont() {
    QFont font;
    font.setFamilies({"Liberation Sans", "Arial", "Arimo", "Helvetica", "sans-serif"});
    font.setPixelSize(11);
    return font;
}

}  // namespace

void ApplyLook() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(LightPalette());
    QToolTip::setPalette(LightPalette());
    QApplication::setFont(FormFont());
}

}  // namespace morpho
