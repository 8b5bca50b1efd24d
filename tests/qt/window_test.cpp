#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>

#include "qt/on_screen.h"

namespace morpho::test {
namespace {

using WindowTest = GalleryOnScreen;

TEST_F(WindowTest, KeysReachWhatTheyStandFor) {
    Show([&](QWidget& window) {
        const auto expectEvent = [&](const Control& focused, Qt::Key key,
                                     Qt::KeyboardModifiers modifiers, const Events& events) {
            form_.events.clear();
            Find(window, focused).setFocus();
            QTest::keyClick(&Find(window, focused), key, modifiers);
            Pause();  // an access key shows the button pressed for a moment
            EXPECT_EQ(form_.events, events) << key;
        };
        expectEvent(form_.txtQuality, Qt::Key_Return, Qt::NoModifier, {"cmdApply_Click"});
        expectEvent(form_.cmdUndo, Qt::Key_Return, Qt::NoModifier, {"cmdUndo_Click"});
        expectEvent(form_.lblLink, Qt::Key_Return, Qt::NoModifier, {"lblLink_Click"});
        expectEvent(form_.cmdApply, Qt::Key_Z, Qt::ControlModifier, {"cmdUndo_Click"});
        expectEvent(form_.cmdUndo, Qt::Key_A, Qt::AltModifier, {"cmdApply_Click"});
        expectEvent(form_.cmdUndo, Qt::Key_D, Qt::AltModifier, {});  // disabled
        form_.cmdUndo.SetEnabled(false);
        expectEvent(form_.cmdApply, Qt::Key_Z, Qt::ControlModifier, {});
    });
}

TEST_F(WindowTest, AccessKeysOfLabelsLeadToTheNextControl) {
    Show([&](QWidget& window) {
        const auto expectFocus = [&](Qt::Key key, const Control& control) {
            QTest::keyClick(&window, key, Qt::AltModifier);
            EXPECT_EQ(Focus(window), control.Name());
            EXPECT_EQ(form_.Focused(), &control);
        };
        expectFocus(Qt::Key_H, form_.sldHue);
        expectFocus(Qt::Key_Q, form_.txtQuality);
        expectFocus(Qt::Key_T, form_.cmbTheme);
    });
}

TEST_F(WindowTest, TabGoesInOrderOfDeclarationAndSkipsWhatIsOutOfReach) {
    form_.optReport.SetValueQuietly(true);
    Show([&](QWidget& window) {
        Events order{Focus(window)};
        for (int i = 0; i < 15; ++i) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            order.push_back(Focus(window));
        }
        EXPECT_EQ(order, (Events{"cmbTheme", "lstNames", "lstPlain", "chkApply", "optReport",
                                 "tvFolders", "lvFiles", "hsPan", "vsPan", "sldHue", "txtQuality",
                                 "vsQuality", "txtGuide", "lblLink", "cmdApply", "cmdUndo"}));
    });
}

TEST_F(WindowTest, EscapePressesTheCancelButtonAndTheFormMayRefuse) {
    Show([&](QWidget& window) {
        form_.refuseClosing = true;
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_EQ(form_.events, (Events{"Form_QueryUnload"}));
        window.close();
        EXPECT_EQ(form_.events.back(), "Form_QueryUnload by user");
        EXPECT_TRUE(window.isVisible());

        form_.refuseClosing = false;
        window.close();
        EXPECT_FALSE(form_.IsLoaded());
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(WindowTest, WhileAHandlerRunsOnlyTheFormThatItOpensTakesWhatAPersonDoes) {
    Form dialog(toolkit_, {.name = "frmDialog", .inner = {3000, 1500}, .hasCloseButton = false});
    CommandButton button(dialog, {"btnOK", {60, 60, 900, 345}, "OK"}, [&] { dialog.Hide(); });
    Show([&](QWidget& window) {
        auto& slider = Find<QSlider>(window, form_.sldHue);
        WhenStands("frmDialog", [&](QWidget& over) {
            EXPECT_FALSE(over.windowFlags() & Qt::WindowCloseButtonHint);
            // What a toolkit may pass on late.
            window.close();
            slider.setValue(70);
            Find<QPushButton>(window, form_.cmdUndo).click();
            EXPECT_EQ(form_.events, Events{"cmdApply_Click"});
            EXPECT_EQ(slider.value(), 0);
            QTest::mouseClick(&Find(over, button), Qt::LeftButton);
        });
        form_.answer = [&] { dialog.ShowModal(); };
        Find<QPushButton>(window, form_.cmdApply).click();
        form_.answer = {};
        EXPECT_FALSE(dialog.IsVisible());
        EXPECT_TRUE(form_.IsLoaded());
    });
}

TEST_F(WindowTest, ADialogStandsInTheMiddleOfItsOwnerAndReturnsToIt) {
    Form dialog(toolkit_, {"frmDialog", "Dialog", {3000, 1500}});
    CommandButton button(dialog, {"btnOK", {60, 60, 900, 345}, "OK"}, [&] { dialog.Hide(); });
    Show([&](QWidget& window) {
        WhenStands("frmDialog", [&](QWidget& over) {
            EXPECT_TRUE(over.isModal());
            const QPoint off = over.frameGeometry().center() - window.frameGeometry().center();
            EXPECT_LE(off.manhattanLength(), 4);
            EXPECT_EQ(over.size(), QSize(200, 100));
            QTest::mouseClick(&Find(over, button), Qt::LeftButton);
            EXPECT_FALSE(over.isVisible());
        });
        dialog.ShowModal();
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(dialog.IsLoaded()) << "it was only hidden";
    });
}

TEST_F(WindowTest, TheFormHearsOfEverySizeAndSetsTheSmallest) {
    Show([&](QWidget& window) {
        const auto expectInner = [&](QSize pixels, const char* why) {
            Pause();
            EXPECT_EQ(window.size(), pixels) << why;
            EXPECT_EQ(form_.Inner(), (Size{pixels.width() * 15, pixels.height() * 15})) << why;
        };
        form_.SetBounds({0, 0, 12300, 6900});
        const QSize frame = window.frameGeometry().size() - window.size();
        expectInner(QSize(820, 460) - frame, "code sets the outer size");
        window.resize(810, 500);
        expectInner({810, 500}, "the person drags the border");
        window.resize(400, 100);
        expectInner(QSize(788, 400) - frame, "the form refuses");
        EXPECT_EQ(window.minimumSize(), QSize(788, 400) - frame) << "and is not asked again";
        window.move(40, 50);
        Pause();
        EXPECT_EQ(form_.Bounds().left, 600);
        EXPECT_EQ(form_.Bounds().top, 750);
    });
}

TEST_F(WindowTest, StateGoesBothWaysAndTheNormalPlaceIsKept) {
    Show([&](QWidget& window) {
        form_.SetBounds({15, 30, 11850, 6015});
        Pause();
        const auto expectState = [&](WindowState state) {
            Pause();
            EXPECT_EQ(form_.State(), state);
            EXPECT_EQ(toolkit_.NormalPlacement(form_), (Rectangle{15, 30, 11850, 6015}));
        };
        window.showMaximized();
        expectState(WindowState::kMaximized);
        EXPECT_NE(form_.Bounds(), (Rectangle{15, 30, 11850, 6015}));
        form_.SetState(WindowState::kNormal);
        Pause();
        EXPECT_FALSE(window.isMaximized());
        window.showMinimized();
        expectState(WindowState::kMinimized);
    });
}

TEST_F(WindowTest, BoundsOffTheScreenAreBroughtBack) {
    form_.answer = [&] {
        form_.answer = {};
        form_.SetBounds({-30000, 90000, 11820, 6000});
    };
    Show([&](QWidget& window) {
        const QRect area = window.screen()->availableGeometry();
        EXPECT_TRUE(area.contains(window.geometry().center()));
        EXPECT_EQ(form_.Bounds().width, 11820);
    });
}

TEST_F(WindowTest, TheMessageBoxAnswersByKey) {
    Show([&](QWidget&) {
        const auto expectAnswer = [&](int flags, Qt::Key key, Answer answer) {
            QTimer::singleShot(0, [&] {
                auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_NE(box, nullptr);
                EXPECT_EQ(box->text(), "<b>Tom</b> & Jerry");
                QTest::keyClick(box, key);
            });
            EXPECT_EQ(form_.MsgBox("<b>Tom</b> & Jerry", flags, "Gallery"), answer) << flags;
        };
        expectAnswer(kOkOnly | kInformationIcon, Qt::Key_Return, Answer::kOk);
        expectAnswer(kOkOnly | kCriticalIcon, Qt::Key_Escape, Answer::kOk);
        expectAnswer(kYesNo | kQuestionIcon, Qt::Key_Return, Answer::kYes);
        expectAnswer(kYesNo, Qt::Key_Escape, Answer::kNo);
        expectAnswer(kYesNoCancel, Qt::Key_Return, Answer::kYes);
        expectAnswer(kYesNoCancel, Qt::Key_Escape, Answer::kCancel);
        expectAnswer(kYesNo | kSecondButtonDefault, Qt::Key_Return, Answer::kNo);
    });
}

TEST_F(WindowTest, TheFileDialogAsksBeforeItReplacesAndFindsWhatMustExist) {
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    for (const char* const name : {"/there.GIF", "/other.txt"})
        EXPECT_TRUE(QFile(folder.path() + name).open(QFile::WriteOnly));
    const auto saving = FileDialog::Mode::kSave, opening = FileDialog::Mode::kOpen;
    const struct {
        FileDialog::Mode mode;
        int flags;
        const char *name, *chosen;  // what is typed and what that brings
        bool asks;                  // whether a message box opens, which Escape answers
    } cases[] = {{opening, kFileMustExist | kHideReadOnly, "there.GIF", "/there.GIF", false},
                 {opening, kFileMustExist | kHideReadOnly, "gone.gif", nullptr, false},
                 {saving, kOverwritePrompt | kHideReadOnly, "new.gif", "/new.gif", false},
                 {saving, kOverwritePrompt | kHideReadOnly, "there.GIF", nullptr, true},
                 {saving, kHideReadOnly, "there.GIF", "/there.GIF", false}};
    for (const auto& [mode, flags, name, chosen, asks] : cases) {
        SCOPED_TRACE(name);
        bool asked = false;
        QTimer::singleShot(0, [&, typed = name] {
            auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            QTimer::singleShot(0, box, [&asked, box] {
                asked = QApplication::activeModalWidget() != box;
                QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
            });
            box->findChild<QLineEdit*>()->setText(typed);
            box->findChild<QDialogButtonBox*>()->buttons().front()->click();
            if (box->isVisible()) box->reject();
        });
        const FileDialog request{mode, "Pick", "Image files|*.gif|All Files|*.*||",
                                 path, {},     flags};
        const auto picked = toolkit_.ShowFileDialog(nullptr, request);
        EXPECT_EQ(picked.value_or(""), chosen == nullptr ? "" : path + chosen);
        EXPECT_EQ(asked, asks);
    }
    EXPECT_EQ(NameFiltersOf("Image files|*.gif;*.j2k|All Files|*.*||"),
              QStringList({"Image files (*.[gG][iI][fF] *.[jJ]2[kK])", "All Files (*)"}));
}

TEST_F(WindowTest, TheMouseIsGivenBackToWhatHeldIt) {
    Show([&](QWidget& window) {
        QWidget& slider = Find(window, form_.sldHue);
        slider.grabMouse();
        const CapturedWindow held = toolkit_.ReleaseCapture();
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        toolkit_.SetCapture(held);
        EXPECT_EQ(QWidget::mouseGrabber(), &slider);
        toolkit_.ReleaseCapture();
        toolkit_.SetCapture(&window + 1);
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr) << "it has gone meanwhile";
    });
}

}  // namespace
}  // namespace morpho::test
