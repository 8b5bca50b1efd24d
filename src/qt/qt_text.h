#pragma once

#include <QRect>
#include <QString>
#include <string>
#include <string_view>

#include "forms/geometry.h"

namespace morpho {

class Control;

QString ToQt(std::string_view utf8);
std::string FromQt(const QString& text);

// A control's caption for widgets that take "&" as the mark of the access key: "&" before that
// letter, every other "&" doubled.
QString MarkedCaptionOf(const Control& control);

// A text as a caption that has no access key: every "&" doubled.
QString WithoutAccessKey(QString text);

// A text that Qt shows as it is, even when it looks like rich text.
QString PlainToolTip(const QString& text);

// Twips and device-independent pixels. Edges are rounded one by one, so neighbours stay neighbours.
int ToPixels(int twips);
QRect ToPixels(const Rectangle& twips);
Rectangle ToTwips(const QRect& pixels);
QSize ToPixels(const Size& twips);
Size ToTwips(const QSize& pixels);

}  // namespace morpho
