#pragma once

#include <QImage>
#include <QWidget>

namespace morpho {

// What the screen shows of this window, with or without the dialogs over it. Web pages in it are
// given time to load and paint: events are processed meanwhile.
QImage PictureOfWindow(QWidget* window, bool withDialogs);

}  // namespace morpho
