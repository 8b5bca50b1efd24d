#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QSpinBox>

#include "desktop_qt/on_screen.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

using Step = std::function<void(Gallery&)>;

// What the peer of every kind keeps to.
struct Kind {
    const char* name;
    const char* widget;
    Step assign;                                  // in code, as quietly as the kind can
    std::function<QString(const QWidget&)> read;  // the state that the widget shows
    QString before, assigned;                     // what it shows at first, and after `assign`
    std::function<void(QWidget&)> act;            // what a person does
    Events events;                                // and what that raises
    Step putBack;                                 // undoes in code what the person did
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

QString Checked(const QWidget& widget) {
    return dynamic_cast<const QAbstractButton&>(widget).isChecked() ? "on" : "off";
}

QString Ticks(const QWidget& widget) {
    QString ticks;
    const auto& list = dynamic_cast<const QListWidget&>(widget);
    for (int row = 0; row < 5; ++row)
        ticks += list.item(row)->checkState() ? '1' : '0';
    return ticks;
}

const Kind kKinds[] = {
    {"CheckBox",
     "chkApply",
     [](Gallery& g) { g.chkApply.SetValueQuietly(true); },
     Checked,
     "off",
     "on",
     [](QWidget& w) { QTest::keyClick(&w, Qt::Key_Space); },
     {"chkApply_Click"},
     [](Gallery& g) { g.chkApply.SetValueQuietly(!g.chkApply.Value()); }},
    {"Slider",
     "sldHue",
     [](Gallery& g) { g.sldHue.SetValueQuietly(15); },
     [](const QWidget& w) { return QString::number(dynamic_cast<const QSlider&>(w).value()); },
     "0",
     "15",
     [](QWidget& w) {
         QTest::keyClick(&w, Qt::Key_PageUp);
         QTest::qWait(120);
     },
     {"sldHue_Scroll", "sldHue_Change"},
     [](Gallery& g) { g.sldHue.SetValueQuietly(15); }},
    {"ScrollBar",
     "vsQuality",
     [](Gallery& g) { g.vsQuality.SetValue(30); },
     [](const QWidget& w) { return QString::number(dynamic_cast<const QSpinBox&>(w).value()); },
     "75",
     "30",
     [](QWidget& w) { QTest::keyClick(&w, Qt::Key_Up); },
     {"vsQuality_Change"},
     [](Gallery& g) { g.vsQuality.SetValue(30); }},
    {"TextBox",
     "txtQuality",
     [](Gallery& g) { g.txtQuality.SetTextQuietly("8"); },
     [](const QWidget& w) { return dynamic_cast<const QLineEdit&>(w).text(); },
     "",
     "8",
     [](QWidget& w) { QTest::keyClicks(&w, "5x"); },
     {"txtQuality_Change"},
     [](Gallery& g) { g.txtQuality.SetTextQuietly("8"); }},
    {"ComboBox",
     "cmbTheme",
     [](Gallery& g) { g.cmbTheme.SetListIndex(1); },
     [](const QWidget& w) { return dynamic_cast<const QComboBox&>(w).currentText(); },
     "",
     "Tom & Jerry",
     [](QWidget& w) { QTest::keyClick(&w, Qt::Key_Down); },
     {"cmbTheme_Click"},
     [](Gallery& g) {
         g.answer = {};
         g.cmbTheme.SetListIndex(1);
         g.events.pop_back();
     }},
    {"ListBox",
     "lstPlain",
     [](Gallery& g) { g.lstPlain.SetListIndex(0); },
     [](const QWidget& w) {
         const auto& list = dynamic_cast<const QListWidget&>(w);
         return list.currentItem() == nullptr ? QString() : list.currentItem()->text();
     },
     "",
     "one",
     [](QWidget& w) { QTest::keyClick(&w, Qt::Key_Down); },
     {"lstPlain_Click"},
     [](Gallery& g) {
         g.answer = {};
         g.lstPlain.SetListIndex(0);
         g.events.pop_back();
     }},
    {"CheckListBox",
     "lstNames",
     [](Gallery& g) { g.lstNames.SetSelectedQuietly(3, true); },
     Ticks,
     "00000",
     "00010",
     [](QWidget& w) {
         QTest::keyClick(&w, Qt::Key_Home);
         QTest::keyClick(&w, Qt::Key_Space);
     },
     {"lstNames_ItemCheck 0"},
     [](Gallery& g) { g.lstNames.SetSelectedQuietly(0, false); }},
};

class PeerContract : public GalleryOnScreen, public testing::WithParamInterface<Kind> {
  protected:
    QString Shown(QWidget& window) const { return GetParam().read(Widget(window)); }
    static QWidget& Widget(QWidget& window) {
        return *window.findChild<QWidget*>(GetParam().widget);
    }
};

INSTANTIATE_TEST_SUITE_P(Every, PeerContract, testing::ValuesIn(kKinds),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(PeerContract, ShowsTheWholeStateAtOnceWithoutAnEvent) {
    GetParam().assign(form_);
    form_.events.clear();
    OnScreen::Show(form_, [&](QWidget& window) { EXPECT_EQ(Shown(window), GetParam().assigned); });
    EXPECT_EQ(form_.events, (Events{"Form_Load", "Form_Resize", "Form_Paint"}));
}

TEST_P(PeerContract, FollowsTheModelWithoutAnEventOfItsOwn) {
    HeadlessToolkit none;
    Gallery twin(none);
    GetParam().assign(twin);
    Show([&](QWidget& window) {
        EXPECT_EQ(Shown(window), GetParam().before);
        GetParam().assign(form_);
        Pause();
        EXPECT_EQ(Shown(window), GetParam().assigned);
        EXPECT_EQ(form_.events, twin.events);
    });
}

TEST_P(PeerContract, ReportsWhatAPersonDoesOnce) {
    GetParam().assign(form_);
    Show([&](QWidget& window) {
        GetParam().act(Widget(window));
        Pause();
        EXPECT_EQ(form_.events, GetParam().events);
        EXPECT_NE(Shown(window), GetParam().assigned);
    });
}

TEST_P(PeerContract, ShowsWhatTheHandlerPutsBack) {
    GetParam().assign(form_);
    Show([&](QWidget& window) {
        form_.answer = [&] { GetParam().putBack(form_); };
        GetParam().act(Widget(window));
        Pause();
        EXPECT_EQ(Shown(window), GetParam().assigned);
    });
}

TEST_P(PeerContract, ShowsTheModelWhereItRefuses) {
    GetParam().assign(form_);
    Show([&](QWidget& window) {
        form_.events.clear();
        QWidget& widget = Widget(window);
        form_.fraPick.SetEnabled(false);
        form_.fraProcess.SetEnabled(false);
        widget.parentWidget()->setEnabled(true);  // only the widget is still within reach
        GetParam().act(widget);
        Pause();
        EXPECT_EQ(Shown(window), GetParam().assigned);
        EXPECT_EQ(form_.events, Events{});
    });
}

}  // namespace
}  // namespace morpho::test
