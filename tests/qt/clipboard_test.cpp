#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "platform/run_time_error.h"
#include "qt/qt_clipboard.h"

namespace morpho::test {
namespace {

TEST(QtClipboard, LendsItsPlaceToAPictureAndGetsEverythingBack) {
    QClipboard& desktop = *QGuiApplication::clipboard();
    QImage red(3, 2, QImage::Format_RGB32);
    red.fill(Qt::red);
    auto* original = new QMimeData;
    original->setHtml("<b>copied</b>");
    original->setImageData(red);
    desktop.setMimeData(original);

    QtClipboard clipboard;
    const auto kept = clipboard.Contents();
    const std::string picture = clipboard.Picture();
    clipboard.Clear();
    EXPECT_EQ(clipboard.Picture(), "");
    EXPECT_THROW(clipboard.SetPicture("no picture"), RunTimeError);
    clipboard.SetPicture(picture);
    EXPECT_EQ(desktop.image().convertToFormat(QImage::Format_RGB32), red);
    clipboard.SetContents(kept);
    EXPECT_EQ(desktop.mimeData()->html(), "<b>copied</b>");
    EXPECT_EQ(desktop.image().convertToFormat(QImage::Format_RGB32), red);
}

}  // namespace
}  // namespace morpho::test
