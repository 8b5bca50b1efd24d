#include "qt/qt_clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "platform/run_time_error.h"

namespace morpho::test {
namespace {

TEST(QtClipboard, LendsItsPlaceToAPictureAndGetsEverythingBack) {
    QClipboard& desktop = *QGuiApplication::clipboard();
    QImage red(3, 2, QImage::Format_RGB32), blue(20, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    blue.fill(Qt::blue);
    auto* original = new QMimeData;
    original->setText("copied");
    original->setHtml("<b>copied</b>");
    original->setImageData(red);
    desktop.setMimeData(original);

    QtClipboard clipboard;
    const auto kept = clipboard.Contents();
    clipboard.Clear();
    EXPECT_EQ(clipboard.Picture(), "");
    EXPECT_THROW(clipboard.SetPicture("no picture"), RunTimeError);
    desktop.setImage(blue);
    clipboard.SetPicture(clipboard.Picture());
    EXPECT_EQ(desktop.image().pixelColor(19, 19), QColor(Qt::blue));
    clipboard.SetContents(kept);
    EXPECT_EQ(desktop.text(), "copied");
    EXPECT_EQ(desktop.mimeData()->html(), "<b>copied</b>");
    EXPECT_EQ(desktop.image().convertToFormat(QImage::Format_RGB32), red);
}

}  // namespace
}  // namespace morpho::test
