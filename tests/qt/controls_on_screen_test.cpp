#include <QBuffer>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTreeWidget>

#include "qt/on_screen.h"
#include "qt/qt_text.h"

namespace morpho::test {
namespace {

using ControlsOnScreen = GalleryOnScreen;

TEST_F(ControlsOnScreen, ADraggedThumbScrollsAtEveryStepAndSettlesWhenLetGo) {
    Show([&](QWidget& window) {
        auto& slider = Find<QSlider>(window, form_.sldHue);
        const QPoint thumb = slider.rect().center();  // at its middle value
        QTest::mousePress(&slider, Qt::LeftButton, {}, thumb);
        for (const int step : {10, 20, 30})
            QTest::mouseMove(&slider, thumb + QPoint(step, 0));
        Pause();
        EXPECT_EQ(form_.events, (Events{"sldHue_Scroll", "sldHue_Scroll", "sldHue_Scroll"}));
        EXPECT_GT(form_.sldHue.Value(), 10);
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, thumb + QPoint(30, 0));
        EXPECT_EQ(form_.events.back(), "sldHue_Change");
        EXPECT_EQ(form_.events.size(), 4u);
    });
}

TEST_F(ControlsOnScreen, ABurstOfKeysSettlesOnceAndBeforeAnythingElseIsDone) {
    Show([&](QWidget& window) {
        auto& slider = Find<QSlider>(window, form_.sldHue);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(&slider, Qt::Key_Right);
        Find<QPushButton>(window, form_.cmdApply).click();
        Pause();
        EXPECT_EQ(form_.events, (Events{"sldHue_Scroll", "sldHue_Scroll", "sldHue_Scroll",
                                        "sldHue_Change", "cmdApply_Click"}));
        EXPECT_EQ(form_.sldHue.Value(), 3);
    });
}

TEST_F(ControlsOnScreen, AThumbThatIsLetGoWhileAHandlerRunsSettlesAfterIt) {
    Show([&](QWidget& window) {
        auto& slider = Find<QSlider>(window, form_.sldHue);
        const QPoint thumb = slider.rect().center();
        QTest::mousePress(&slider, Qt::LeftButton, {}, thumb);
        form_.answer = [&] {
            form_.answer = {};
            QTest::mouseMove(&slider, thumb + QPoint(40, 0));
            QTest::mouseRelease(&slider, Qt::LeftButton, {}, thumb + QPoint(40, 0));
        };
        QTest::mouseMove(&slider, thumb + QPoint(20, 0));
        EXPECT_EQ(form_.events, Events{"sldHue_Scroll"});
        EXPECT_EQ(slider.value(), form_.sldHue.Value());
        Pause();
        EXPECT_EQ(form_.events, (Events{"sldHue_Scroll", "sldHue_Change"}));
    });
}

TEST_F(ControlsOnScreen, TextComesInByOneDoorAloneHoweverItIsEntered) {
    form_.txtQuality.SetTextQuietly("75");
    form_.txtQuality.StepWith(form_.vsQuality);
    form_.answer = [&] {  // in Form_Load
        form_.answer = {};
        form_.txtQuality.SetFocus();
        form_.txtQuality.SelectAll();
    };
    Show([&](QWidget& window) {
        auto& box = Find<QLineEdit>(window, form_.txtQuality);
        EXPECT_EQ(Focus(window), "txtQuality");
        EXPECT_EQ(box.selectedText(), "75");
        box.end(false);
        const auto expectText = [&](const char* text, int cursor, const char* why) {
            EXPECT_EQ(form_.txtQuality.Text(), text) << why;
            EXPECT_EQ(box.text(), text) << why;
            EXPECT_EQ(box.cursorPosition(), cursor) << why;
        };
        const auto paste = [&](const char* text) {
            QApplication::clipboard()->setText(text);
            box.paste();
        };
        QTest::keyClick(&box, Qt::Key_Left);
        QTest::keyClick(&box, Qt::Key_X);
        expectText("75", 1, "a key that is swallowed");
        paste("0.5");
        expectText("75", 1, "a paste with a character that is swallowed");
        paste("12");
        expectText("7125", 3, "a paste");
        box.undo();
        expectText("75", 1, "undo");
        QTest::keyClick(&box, Qt::Key_8, Qt::AltModifier);
        expectText("75", 1, "no access key");
        QInputMethodEvent composed;
        composed.setCommitString("x");
        QApplication::sendEvent(&box, &composed);
        expectText("75", 1, "an input method");
        form_.txtQuality.SelectAll();
        QTest::keyClick(&box, Qt::Key_9);
        expectText("9", 1, "the text was selected");
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down})
            QTest::keyClick(&box, key);
        EXPECT_EQ(form_.vsQuality.Value(), 76);
    });
}

TEST_F(ControlsOnScreen, AnArrowThatIsHeldRepeatsEvenIfItsHandlerMovesTheFocus) {
    Show([&](QWidget& window) {
        form_.answer = [&] { form_.txtQuality.SetFocus(); };
        QWidget& arrows = Find(window, form_.vsQuality);
        arrows.setFocus();
        const QPoint up(arrows.width() - 4, 4);
        QTest::mousePress(&arrows, Qt::LeftButton, {}, up);
        EXPECT_TRUE(QTest::qWaitFor([&] { return form_.vsQuality.Value() > 77; }));
        QTest::mouseRelease(&arrows, Qt::LeftButton, {}, up);
        const int value = form_.vsQuality.Value();
        QTest::qWait(300);
        EXPECT_EQ(form_.vsQuality.Value(), value);
    });
}

TEST_F(ControlsOnScreen, FocusComesBackAfterALongOperation) {
    Show([&](QWidget& window) {
        Find(window, form_.sldHue).setFocus();
        form_.RunHandler("long", [&] {
            for (const bool enabled : {false, true})
                for (Frame* const frame : {&form_.fraPick, &form_.fraProcess, &form_.fraMenu})
                    frame->SetEnabled(enabled);
        });
        EXPECT_EQ(Focus(window), "sldHue");
        EXPECT_EQ(form_.Focused(), &form_.sldHue);
    });
}

TEST_F(ControlsOnScreen, OnlyAClickOnTheBoxOrADoubleClickTicks) {
    Show([&](QWidget& window) {
        auto& list = Find<QListWidget>(window, form_.lstNames);
        const QRect row = list.visualItemRect(list.item(2));
        const QPoint box = row.topLeft() + QPoint(8, row.height() / 2);
        const QPoint text = row.topLeft() + QPoint(60, row.height() / 2);
        const auto expectTicked = [&](const char* what, bool ticked, std::size_t events) {
            EXPECT_EQ(form_.lstNames.Selected(2), ticked) << what;
            EXPECT_EQ(form_.events.size(), events) << what;
        };
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, text);
        expectTicked("click on the text", false, 0);
        EXPECT_EQ(form_.lstNames.ListIndex(), 2);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box);
        expectTicked("click on the box", true, 1);
        form_.lstNames.SetListIndex(0);
        list.item(3)->setCheckState(Qt::Checked);
        EXPECT_EQ(form_.lstNames.ListIndex(), 3) << "what is ticked becomes the current entry";
        form_.events.pop_back();
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, text);
        expectTicked("double click on the text", false, 2);
    });
}

TEST_F(ControlsOnScreen, RowsAreClickedAgainNodesOpenedAndClosed) {
    Show([&](QWidget& window) {
        auto& tree = Find<QTreeWidget>(window, form_.tvFolders);
        auto& list = Find<QTreeWidget>(window, form_.lvFiles);
        const auto click = [](QTreeWidget& rows, int x, int y) {
            QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, QPoint(x, y));
        };
        const int below = 150;  // pixels
        click(list, 30, 5);
        click(list, 30, 5);
        EXPECT_EQ(form_.events, (Events{"lvFiles_ItemClick 0", "lvFiles_ItemClick 0"}));
        click(list, 30, below);
        EXPECT_EQ(form_.lvFiles.SelectedRow(), kNoEntry);

        tree.topLevelItem(0)->setExpanded(true);
        EXPECT_TRUE(form_.root->IsExpanded());
        form_.RunHandler("busy", [&] { tree.topLevelItem(0)->setExpanded(false); });
        EXPECT_TRUE(tree.topLevelItem(0)->isExpanded()) << "refused";
        form_.tvFolders.AddNode(form_.root, {"Archive"});
        EXPECT_EQ(tree.topLevelItem(0)->child(1)->text(0), "Archive") << "among its siblings";
        form_.tvFolders.SelectNode(form_.root->Children()[1]);
        click(tree, 60, below);
        EXPECT_EQ(form_.tvFolders.SelectedNode(), form_.root->Children()[1]);
        tree.topLevelItem(0)->setExpanded(false);
        EXPECT_EQ(tree.currentItem(), tree.topLevelItem(0)) << "the selected node is in sight";
        form_.tvFolders.Clear();
        TreeNode& other = form_.tvFolders.AddNode(nullptr, {"other"});
        form_.tvFolders.SetExpanded(other, true);
        form_.tvFolders.AddNode(&other, {"child"});
        EXPECT_FALSE(tree.visualItemRect(tree.topLevelItem(0)->child(0)).isEmpty());
        EXPECT_EQ(form_.events.size(), 4u) << "two rows, two nodes";
    });
}

TEST_F(ControlsOnScreen, AnAnimationPlays) {
    // Two frames of 2 x 1 pixels, red and blue, for 50 ms each, again and again.
    const QByteArray animation = QByteArray::fromHex(
        "47494638396102000100f00000"
        "ff0000000000"
        "21f9040005000000"
        "21ff0b4e45545343415045322e300301000000"
        "2c0000000002000100000202040a00"
        "21f9040005000000"
        "2c0000000002000100800000ff0000000202040a003b");
    Show([&](QWidget& window) {
        form_.picOwnSize.SetPicture(animation.toStdString());
        QWidget& widget = Find(window, form_.picOwnSize);
        const auto shows = [&](Qt::GlobalColor color) {
            return QTest::qWaitFor(
                [&] { return widget.grab().toImage().pixelColor(0, 0) == QColor(color); }, 3000);
        };
        EXPECT_TRUE(shows(Qt::red) && shows(Qt::blue) && shows(Qt::red));
    });
}

TEST_F(ControlsOnScreen, ADamagedPictureHasNoSizeAndAMovedOneIsCutOffByItsFrame) {
    Show([&](QWidget&) {
        QByteArray encoded;
        QBuffer buffer(&encoded);
        QImage red(300, 300, QImage::Format_RGB32);
        red.fill(Qt::red);
        red.save(&buffer, "PNG");
        form_.picPanned.SetPlace({-1500, -1500, 4500, 4500});
        form_.picPanned.SetPicture(encoded.toStdString());
        EXPECT_EQ(form_.picPanned.NaturalSize(), (Size{4500, 4500}));
        const QPoint corner = ToPixels(form_.fraPreview.Place()).topLeft() +
                              ToPixels(form_.fraView.Place()).topLeft();
        const QImage picture = toolkit_.PictureOf(form_);
        EXPECT_EQ(picture.pixelColor(corner + QPoint(2, 2)), Qt::red);
        EXPECT_NE(picture.pixelColor(corner - QPoint(2, -2)), Qt::red);
        form_.picPanned.SetPicture(encoded.left(60).toStdString());
        EXPECT_EQ(form_.picPanned.NaturalSize(), Size{});
    });
}

TEST_F(ControlsOnScreen, TheTopEntryIsKnownToBothSides) {
    form_.lstNames.SetTopIndex(5);
    Show([&](QWidget& window) {
        auto& list = Find<QListWidget>(window, form_.lstNames);
        const auto top = [&] { return list.row(list.itemAt(3, 3)); };
        EXPECT_EQ(top(), 5);
        list.verticalScrollBar()->setValue(7);
        EXPECT_EQ(form_.lstNames.TopIndex(), 7);
        form_.lstNames.SetTopIndex(2);
        EXPECT_EQ(top(), 2);
        form_.lstNames.SetTopIndex(29);
        EXPECT_EQ(form_.lstNames.TopIndex(), top()) << "the list's end stops it";
        form_.lstNames.SetListIndex(0);
        EXPECT_EQ(form_.lstNames.TopIndex(), 0) << "the current entry is scrolled to";
    });
}

}  // namespace
}  // namespace morpho::test
