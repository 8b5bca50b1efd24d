#include <QListWidget>
#include <QMetaProperty>
#include <QTreeWidget>

#include "forms/headless_toolkit.h"
#include "qt/on_screen.h"

namespace morpho::test {
namespace {

// What the peer of every kind keeps to.
struct Kind {
    const char* widget;
    QString before, assigned;   // what the widget shows at first, and after Assign
    std::vector<Qt::Key> keys;  // what a person types
    QString typed;              // what it shows then
    Events events;              // and what that raised
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.widget;
}

// In code, as quietly as each kind can.
void Assign(Gallery& gallery) {
    gallery.chkApply.SetValueQuietly(true);
    gallery.sldHue.SetValueQuietly(15);
    gallery.vsQuality.SetValue(30);
    gallery.txtQuality.SetTextQuietly("8");
    gallery.cmbTheme.SetListIndex(1);
    gallery.lstPlain.SetListIndex(0);
    gallery.lstNames.SetSelectedQuietly(0, true);
    gallery.optList.SetValueQuietly(true);
    gallery.tvFolders.SelectNodeQuietly(gallery.root);
    gallery.lvFiles.SelectRowQuietly(0);
    gallery.hsPan.SetValue(30);
    gallery.vsPan.SetValue(30);
}

const std::string kText = "txtQuality_Change", kScroll = "sldHue_Scroll", kChange = "sldHue_Change",
                  kNode = "tvFolders_NodeClick ";

const Kind kKinds[] = {
    {"chkApply", "false", "true", {Qt::Key_Space}, "false", {"chkApply_Click"}},
    {"sldHue", "0", "15", {Qt::Key_PageUp, Qt::Key_Left}, "34", {kScroll, kScroll, kChange}},
    {"sldHue", "0", "15", {Qt::Key_Home, Qt::Key_End}, "180", {kScroll, kScroll, kChange}},
    {"vsQuality", "75", "30", {Qt::Key_Up}, "31", {"vsQuality_Change"}},
    {"txtQuality", "", "8", {Qt::Key_5, Qt::Key_X, Qt::Key_Period}, "85", {kText}},
    {"txtQuality", "", "8", {Qt::Key_Backspace, Qt::Key_6}, "6", {kText, kText}},
    {"cmbTheme", "", "Tom & Jerry", {Qt::Key_Down}, "Ärger", {"cmbTheme_Click"}},
    {"lstPlain", "", "one", {Qt::Key_Down}, "two", {"lstPlain_Click"}},
    {"lstNames", "", "active/image-0", {Qt::Key_Home, Qt::Key_Space}, "", {"lstNames_ItemCheck 0"}},
    {"optList", "false", "true", {Qt::Key_Right}, "false", {"optReport_Click"}},
    {"tvFolders", "", "web", {Qt::Key_Right, Qt::Key_Down}, "_private", {kNode + "_private"}},
    {"lvFiles", "", "a.gif", {Qt::Key_Down}, "b.jpg", {"lvFiles_ItemClick 1"}},
    {"hsPan",
     "0",
     "30",
     {Qt::Key_Right, Qt::Key_PageDown},
     "195",
     {"hsPan_Change", "hsPan_Change"}},
    {"vsPan", "0", "30", {Qt::Key_Down, Qt::Key_PageDown}, "195", {"vsPan_Change", "vsPan_Change"}},
};

class PeerContract : public GalleryOnScreen, public testing::WithParamInterface<Kind> {
  protected:
    static QWidget& Widget(QWidget& window) {
        return *window.findChild<QWidget*>(GetParam().widget);
    }
    void Type(QWidget& window) {
        Widget(window).setFocus();
        for (const Qt::Key key : GetParam().keys)
            QTest::keyClick(&Widget(window), key);
        Pause();
    }
    // A handler that undoes in code what the person did; its own doing it leaves alone.
    std::function<void()> PutBack() {
        return [this] {
            form_.answer = {};
            Assign(form_);
            form_.answer = PutBack();
        };
    }
    // The widget's value; of a list the current entry or, where it has boxes, the ticked ones; of a
    // tree or list view the selected one.
    static QString Shown(QWidget& window) {
        QWidget& widget = Widget(window);
        if (const auto* const tree = qobject_cast<const QTreeWidget*>(&widget))
            return tree->selectedItems().isEmpty() ? "" : tree->selectedItems()[0]->text(0);
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

INSTANTIATE_TEST_SUITE_P(Every, PeerContract, testing::ValuesIn(kKinds), [](const auto& test) {
    return test.param.widget + std::to_string(test.index);
});

TEST_P(PeerContract, FollowsTheModelWithoutAnEventOfItsOwn) {
    HeadlessToolkit none;
    Gallery twin(none);
    Assign(twin);
    Show([&](QWidget& window) {
        EXPECT_EQ(Shown(window), kind_.before);
        Assign(form_);
        Pause();
        EXPECT_EQ(Shown(window), kind_.assigned);
        EXPECT_EQ(form_.events, twin.events);
    });
}

TEST_P(PeerContract, ReportsWhatAPersonDoesOnce) {
    Assign(form_);
    Show([&](QWidget& window) {
        Type(window);
        EXPECT_EQ(form_.events, kind_.events);
        EXPECT_EQ(Shown(window), kind_.typed);
    });
}

TEST_P(PeerContract, ShowsWhatTheHandlerPutsBack) {
    Assign(form_);
    Show([&](QWidget& window) {
        form_.answer = PutBack();
        Type(window);
        EXPECT_EQ(Shown(window), kind_.assigned);
    });
}

TEST_P(PeerContract, ShowsTheModelWhereItRefuses) {
    Assign(form_);
    Show([&](QWidget& window) {
        form_.events.clear();
        form_.fraPick.SetEnabled(false);
        form_.fraProcess.SetEnabled(false);
        form_.fraPreview.SetEnabled(false);
        Widget(window).parentWidget()->setEnabled(true);  // only the widget is still within reach
        Type(window);
        EXPECT_EQ(Shown(window), kind_.assigned);
        EXPECT_EQ(form_.events, Events{});
    });
}

}  // namespace
}  // namespace morpho::test
