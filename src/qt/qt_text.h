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

// A caption as it is read, and the place of the letter that Alt reaches it by.
struct MnemonicText {
    QString plain;
    int position = -1;  // of the underlined letter in `plain`; -1: none

    // For widgets that take "&" as the mark: "&" before the letter, every other "&" doubled.
    QString Marked() const;
};

// "&" before a letter or digit marks it, "&&" is one "&", any other "&" stands for itself. With an
// access key the caption is taken as it is and the first such letter is marked, best at a word's
// start.
MnemonicText ReadMnemonic(const QString& caption, char accessKey);
MnemonicText CaptionOf(const Control& control);

// A text that Qt shows as it is, even when it looks like rich text.
QString PlainToolTip(const QString& text);

// Twips and device-independent pixels. Edges are rounded one by one, so neighbours stay neighbours.
int ToPixels(int twips);
QRect ToPixels(const Rectangle& twips);
Rectangle ToTwips(const QRect& pixels);
Size ToTwips(const QSize& pixels);

}  // namespace morpho
