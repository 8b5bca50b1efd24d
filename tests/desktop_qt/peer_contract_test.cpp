#include <QListWidget>
#include <QMetaProperty>

#include "desktop_qt/on_screen.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

// What the peer of every kind keeps to.
struct Kind {
    const char* widget;
    std::function<void(Gallery&)> assign;  // in code, as quietly as the kind can
    QString before, assigned;              // what the widget shows at first, and after `assign`
    std::vector<Qt::Key> keys;             // what a person types
    Events events;                         // and what that raises
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.widget;
}

const Kind kKinds[] = {
    {"chkApply",
     [](Gallery& g) { g.chkApply.SetValueQuietly(true); },
     "false",
     "true",
     {Qt::Key_Space},
     {"chkApply_Click"}},
    {"sldHue",
     [](Gallery& g) { g.sldHue.SetValueQuietly(15); },
     "0",
     "15",
     {Qt::Key_PageUp},
     {"sldHue_Scroll", "sldHue_Change"}},
    {"vsQuality",
     [](Gallery& g) { g.vsQuality.SetValue(30); },
     "75",
     "30",
     {Qt::Key_Up},
     {"vsQuality_Change"}},
    {"txtQuality",
     [](Gallery& g) { g.txtQuality.SetTextQuietly("8"); },
     "",
     "8",
     {Qt::Key_5, Qt::Key_X, Qt::Key_Backspace, Qt::Key_Period, Qt::Key_6},
     {"txtQuality_Change", "txtQuality_Change", "txtQuality_Change"}},
    {"cmbTheme",
     [](Gallery& g) { g.cmbTheme.SetListIndex(1); },
     "",
     "Tom & Jerry",
     {Qt::Key_Down},
     {"cmbTheme_Click"}},
    {"lstPlain",
     [](Gallery& g) { g.lstPlain.SetListIndex(0); },
     "",
     "one",
     {Qt::Key_Down},
     {"lstPlain_Click"}},
    {"lstNames",
     [](Gallery& g) { g.lstNames.SetSelectedQuietly(0, true); },
     "",
     "active/image-0",
     {Qt::Key_Home, Qt::Key_Space},
     {"lstNames_ItemCheck 0"}},
};

class PeerContract : public GalleryOnScreen, public testing::WithParamInterface<Kind> {
  protected:
    static QWidget& Widget(QWidget& window) {
        return *window.findChild<QWidget*>(GetParam().widget);
    }
    void Type(QWidget& window) {
        for (const Qt::Key key : GetParam().keys)
            QTest::keyClick(&Widget(window), key);
        Pause();
    }
    // A handler that undoes in code what the person did; its own doing it leaves alone.
    std::function<void()> PutBack() {
        return [this] {
            form_.answer = {};
            kind_.assign(form_);
            form_.answer = PutBack();
        };
    }
    // The widget's value; of a list the current entry or, where it has boxes, the ticked ones.
    static QString Shown(QWidget& window) {
        QWidget& widget = Widget(window);
        const auto* const list = qobject_cast<const QListWidget*>(&widget);
        if (list == nullptr) return widget.metaObject()->userProperty().read(&widget).toString();
        QString entries;
        for (int row = 0; row < list->count(); ++row) {
            const QVariant box = list->item(row)->data(Qt::CheckStateRole);
            if (box.isValid() ? box == Qt::Checked : row == list->currentRow())
                entries += list->item(row)->text();
        }
        return entries;
    }
    const Kind& kind_ = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Every, PeerContract, testing::ValuesIn(kKinds),
                         [](const auto& test) { return std::string(test.param.widget); });

TEST_P(PeerContract, ShowsTheWholeStateAtOnceWithoutAnEvent) {
    kind_.assign(form_);
    form_.events.clear();
    OnScreen::Show(form_, [&](QWidget& window) { EXPECT_EQ(Shown(window), kind_.assigned); });
    EXPECT_EQ(form_.events, (Events{"Form_Load", "Form_Resize", "Form_Paint"}));
}

TEST_P(PeerContract, FollowsTheModelWithoutAnEventOfItsOwn) {
    HeadlessToolkit none;
    Gallery twin(none);
    kind_.assign(twin);
    Show([&](QWidget& window) {
        EXPECT_EQ(Shown(window), kind_.before);
        kind_.assign(form_);
        Pause();
        EXPECT_EQ(Shown(window), kind_.assigned);
        EXPECT_EQ(form_.events, twin.events);
    });
}

TEST_P(PeerContract, ReportsWhatAPersonDoesOnce) {
    kind_.assign(form_);
    Show([&](QWidget& window) {
        Type(window);
        EXPECT_EQ(form_.events, kind_.events);
        EXPECT_NE(Shown(window), kind_.assigned);
    });
}

TEST_P(PeerContract, ShowsWhatTheHandlerPutsBack) {
    kind_.assign(form_);
    Show([&](QWidget& window) {
        form_.answer = PutBack();
        Type(window);
        EXPECT_EQ(Shown(window), kind_.assigned);
    });
}

TEST_P(PeerContract, ShowsTheModelWhereItRefuses) {
    kind_.assign(form_);
    Show([&](QWidget& window) {
        form_.events.clear();
        form_.fraPick.SetEnabled(false);
        form_.fraProcess.SetEnabled(false);
        Widget(window).parentWidget()->setEnabled(true);  // only the widget is still within reach
        Type(window);
        EXPECT_EQ(Shown(window), kind_.assigned);
        EXPECT_EQ(form_.events, Events{});
    });
}

}  // namespace
}  // namespace morpho::test
