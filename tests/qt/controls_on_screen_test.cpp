#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>

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

TEST_F(ControlsOnScreen, ASliderOfOtherLimitsKeepsItsValue) {
    int raised = 0;
    const auto raise = [&] { ++raised; };
    Form form(toolkit_, {"frmNarrow", "Narrow", {3000, 900}});
    Slider slider(form, {"slider", {60, 60, 2800, 375}}, {10, 20, 15}, raise, raise);
    OnScreen::Show(form, [&](QWidget& window) {
        Pause();
        EXPECT_EQ(Find<QSlider>(window, slider).value(), 15);
    });
    EXPECT_EQ(slider.Value(), 15);
    EXPECT_EQ(raised, 0);
}

TEST_F(ControlsOnScreen, FocusComesBackAfterALongOperation) {
    Show([&](QWidget& window) {
        Find(window, form_.sldHue).setFocus();
        for (const bool enabled : {false, true})
            form_.fraProcess.SetEnabled(enabled);
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
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, text);
        expectTicked("double click on the text", false, 2);
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

TEST_F(ControlsOnScreen, EntriesFollowAddingAndClearing) {
    Show([&](QWidget& window) {
        auto& list = Find<QListWidget>(window, form_.lstPlain);
        form_.lstPlain.AddItem("four & more");
        EXPECT_EQ(list.item(3)->text(), "four & more");
        form_.lstPlain.Clear();
        form_.lstPlain.AddItem("new");
        EXPECT_EQ(list.count(), 1);
        EXPECT_EQ(list.item(0)->text(), "new");
        EXPECT_EQ(form_.events, Events{});
    });
}

TEST_F(ControlsOnScreen, ATimerRunsOnlyWhileItIsEnabled) {
    Show([&](QWidget&) {
        Pause();
        EXPECT_EQ(form_.events, Events{});
        form_.timer.SetEnabled(true);
        Pause();
        EXPECT_GE(form_.events.size(), 2u);
    });
}

TEST(Captions, MarkTheLetterThatAltReaches) {
    const auto expectMarked = [](const char* caption, char key, const char* marked) {
        EXPECT_EQ(ReadMnemonic(caption, key).Marked().toStdString(), marked) << caption;
    };
    expectMarked("&Apply", 0, "&Apply");
    expectMarked("Tom && Jerry", 0, "Tom && Jerry");
    expectMarked("Tom & Jerry", 0, "Tom && Jerry");
    expectMarked("Tom & &Jerry &x", 0, "Tom && &Jerry x");
    expectMarked("Close", 'c', "&Close");
    expectMarked("Select None", 'N', "Select &None");
    expectMarked("Tom & Jerry", 'r', "Tom && Je&rry");
    expectMarked("Close", 'x', "Close");
    expectMarked("100 %&", 0, "100 %&&");
}

}  // namespace
}  // namespace morpho::test
