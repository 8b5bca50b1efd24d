#include <gmock/gmock.h>

#include <stdexcept>

#include "forms/gallery.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Events = std::vector<std::string>;
using Step = std::function<void(Gallery&)>;

// What every kind of control keeps to.
struct Kind {
    Control& (*control)(Gallery&);
    bool (*user)(Gallery&);  // a person changes the state
    Events events;           // what that raises; of it, a change in code raises the last
    Step assign = {};        // the same change in code; null: the kind has none
    Step quietly = {};       // the same without a word; null: the kind has no such way
};

const Kind kKinds[] = {
    {[](Gallery& g) -> Control& { return g.chkApply; },
     [](Gallery& g) { return g.chkApply.UserSet(true); },
     {"chkApply_Click"},
     [](Gallery& g) { g.chkApply.SetValue(true); },
     [](Gallery& g) { g.chkApply.SetValueQuietly(true); }},
    {[](Gallery& g) -> Control& { return g.sldHue; },
     [](Gallery& g) { return g.sldHue.UserSettle(30); },
     {"sldHue_Scroll", "sldHue_Change"},
     [](Gallery& g) { g.sldHue.SetValue(30); },
     [](Gallery& g) { g.sldHue.SetValueQuietly(30); }},
    {[](Gallery& g) -> Control& { return g.vsQuality; },
     [](Gallery& g) { return g.vsQuality.UserSet(30); },
     {"vsQuality_Change"},
     [](Gallery& g) { g.vsQuality.SetValue(30); }},
    {[](Gallery& g) -> Control& { return g.txtQuality; },
     [](Gallery& g) { return g.txtQuality.UserEdit("80"); },
     {"txtQuality_Change"},
     [](Gallery& g) { g.txtQuality.SetText("80"); },
     [](Gallery& g) { g.txtQuality.SetTextQuietly("80"); }},
    {[](Gallery& g) -> Control& { return g.cmbTheme; },
     [](Gallery& g) { return g.cmbTheme.UserSelect(1); },
     {"cmbTheme_Click"},
     [](Gallery& g) { g.cmbTheme.SetListIndex(1); }},
    {[](Gallery& g) -> Control& { return g.lstNames; },
     [](Gallery& g) { return g.lstNames.UserCheck(4, true); },
     {"lstNames_ItemCheck 4"},
     [](Gallery& g) { g.lstNames.SetSelected(4, true); },
     [](Gallery& g) { g.lstNames.SetSelectedQuietly(4, true); }},
    {[](Gallery& g) -> Control& { return g.optReport; },
     [](Gallery& g) { return g.optReport.UserClick(); },
     {"optReport_Click"},
     [](Gallery& g) { g.optReport.SetValue(true); },
     [](Gallery& g) { g.optReport.SetValueQuietly(true); }},
    {[](Gallery& g) -> Control& { return g.tvFolders; },
     [](Gallery& g) { return g.tvFolders.UserClick(*g.root); },
     {"tvFolders_NodeClick web"},
     [](Gallery& g) { g.tvFolders.SelectNode(g.root); },
     [](Gallery& g) { g.tvFolders.SelectNodeQuietly(g.root); }},
    {[](Gallery& g) -> Control& { return g.lvFiles; },
     [](Gallery& g) { return g.lvFiles.UserClick(0); },
     {"lvFiles_ItemClick 0"},
     [](Gallery& g) { g.lvFiles.SelectRow(0); },
     [](Gallery& g) { g.lvFiles.SelectRowQuietly(0); }},
    {[](Gallery& g) -> Control& { return g.hsPan; },
     [](Gallery& g) { return g.hsPan.UserSet(30); },
     {"hsPan_Change"},
     [](Gallery& g) { g.hsPan.SetValue(30); }},
    {[](Gallery& g) -> Control& { return g.cmdApply; },
     [](Gallery& g) { return g.cmdApply.UserClick(); },
     {"cmdApply_Click"}},
    {[](Gallery& g) -> Control& { return g.lblLink; },
     [](Gallery& g) { return g.lblLink.UserClick(); },
     {"lblLink_Click"}},
};

class Controls : public testing::Test {
  protected:
    // Does this to each kind in a form of its own.
    void ForEachKind(const std::function<void(const Kind&, Gallery&)>& expect) {
        for (const Kind& kind : kKinds) {
            SCOPED_TRACE(kind.events.back());
            Gallery form(toolkit_);
            expect(kind, form);
        }
    }

    HeadlessToolkit toolkit_;
    Gallery form_{toolkit_};
};

TEST_F(Controls, AnnounceAnAssignmentOnceAndAnEqualOrQuietOneNotAtAll) {
    ForEachKind([](const Kind& kind, Gallery& form) {
        if (!kind.assign) return;
        kind.assign(form);
        kind.assign(form);
        EXPECT_THAT(form.events, ElementsAre(kind.events.back()));
    });
    ForEachKind([](const Kind& kind, Gallery& form) {
        if (!kind.quietly) return;
        kind.quietly(form);
        kind.assign(form);  // an equal one
        EXPECT_THAT(form.events, IsEmpty());
    });
}

TEST_F(Controls, RefuseAPersonWhoCouldNotAndLetInOneWhoCan) {
    ForEachKind([](const Kind& kind, Gallery& form) {
        Control& control = kind.control(form);
        for (Control* cause : {&control, dynamic_cast<Control*>(&control.Parent())}) {
            for (const auto set : {&Control::SetEnabled, &Control::SetVisible}) {
                (cause->*set)(false);
                EXPECT_FALSE(kind.user(form));
                (cause->*set)(true);
            }
        }
        form.RunHandler("a handler", [&] { EXPECT_FALSE(kind.user(form)); });
        EXPECT_THAT(form.events, IsEmpty());
        EXPECT_TRUE(kind.user(form));
        EXPECT_EQ(form.events, kind.events);
    });
}

TEST_F(Controls, EndAFailingHandlerInOnePlace) {
    ForEachKind([](const Kind& kind, Gallery& form) {
        form.answer = [] { throw RunTimeError(ErrorNumber::kOverflow, "Overflow"); };
        EXPECT_TRUE(kind.user(form));
        EXPECT_THAT(form.failures, testing::Each(testing::EndsWith(": Overflow")));
        EXPECT_EQ(form.failures.size(), kind.events.size());
    });
}

TEST_F(Controls, ASliderScrollsAtEveryStepAndSettlesOnce) {
    for (const int step : {5, 9, 9, 12})
        EXPECT_TRUE(form_.sldHue.UserScroll(step));
    EXPECT_TRUE(form_.sldHue.UserSettle(12));
    EXPECT_TRUE(form_.sldHue.UserSettle(12));
    EXPECT_THAT(form_.events,
                ElementsAre("sldHue_Scroll", "sldHue_Scroll", "sldHue_Scroll", "sldHue_Change"));
}

TEST_F(Controls, ValuesOutsideTheRangeBecomeTheNearestInsideAndAHandlerMayPutThemBack) {
    form_.sldHue.SetValue(-500);
    form_.vsQuality.SetValue(101);
    EXPECT_EQ(form_.sldHue.Value(), -180);
    EXPECT_EQ(form_.vsQuality.Value(), 100);
    form_.answer = [&] { form_.vsQuality.SetValue(1); };
    EXPECT_TRUE(form_.vsQuality.UserSet(0));
    EXPECT_EQ(form_.vsQuality.Value(), 1);
}

TEST_F(Controls, ATextBoxSwallowsTheKeysItsHandlerRefuses) {
    EXPECT_TRUE(form_.txtQuality.UserType("1a0-0.\b\bx"));
    EXPECT_EQ(form_.txtQuality.Text(), "1");
    EXPECT_EQ(form_.events.size(), 5u) << "a change for each key that got in";
    EXPECT_TRUE(form_.txtQuality.UserEdit("1x2"));
    EXPECT_EQ(form_.txtQuality.Text(), "1") << "a paste comes in whole or not at all";
    EXPECT_FALSE(form_.txtGuide.UserType("no") || form_.txtGuide.UserEdit("no"));
}

TEST_F(Controls, AListKnowsItsEntries) {
    EXPECT_EQ(form_.cmbTheme.FindExact("tom & jerry"), 1);
    EXPECT_EQ(form_.cmbTheme.FindExact("tom"), kNoEntry);
    EXPECT_THROW(form_.cmbTheme.SetListIndex(3), std::out_of_range);
    EXPECT_FALSE(form_.cmbTheme.UserSelect(3));
    form_.cmbTheme.SetListIndex(1);
    EXPECT_EQ(form_.cmbTheme.Text(), "Tom & Jerry");
    form_.cmbTheme.Clear();
    EXPECT_EQ(form_.cmbTheme.Text(), "");

    form_.lstNames.SetItemData(7, 70);
    form_.lstNames.SetSelected(0, true);
    form_.lstNames.SetSelected(9, true);
    EXPECT_EQ(form_.lstNames.ItemData(7), 70);
    EXPECT_EQ(form_.lstNames.SelectedCount(), 2);
    form_.lstNames.UserCheck(4, true);
    EXPECT_EQ(form_.lstNames.ListIndex(), 4) << "what a person ticks becomes the current entry";
    form_.lstNames.SetTopIndex(5);
    form_.lstNames.Clear();
    form_.lstNames.AddItem("again");
    EXPECT_FALSE(form_.lstNames.Selected(0));
    EXPECT_EQ(form_.lstNames.TopIndex(), 0);
}

TEST_F(Controls, AGroupHasAtMostOneChoice) {
    EXPECT_TRUE(form_.optList.UserClick() && form_.optReport.UserClick());
    EXPECT_TRUE(form_.optReport.Value() && !form_.optList.Value());
    EXPECT_TRUE(form_.optReport.UserClick());
    form_.optReport.SetValue(false);
    EXPECT_THAT(form_.events, ElementsAre("optList_Click", "optReport_Click"));
}

TEST_F(Controls, ATreeSortsItsNodesAndKeepsTheSelectedOneInSight) {
    std::string children;
    for (const TreeNode* const child : form_.root->Children())
        children += child->Text() + " ";
    EXPECT_EQ(children, "_private Docs images ");
    form_.tvFolders.SelectNode(form_.root->Children()[1]);
    EXPECT_EQ(form_.root->ShownImage(), "OpenFolder");
    EXPECT_TRUE(form_.tvFolders.UserExpand(*form_.root, false));
    EXPECT_EQ(form_.tvFolders.SelectedNode(), form_.root);
    EXPECT_TRUE(form_.tvFolders.UserClick(*form_.root)) << "once more, which is told again";
    form_.tvFolders.Clear();
    EXPECT_EQ(form_.tvFolders.SelectedNode(), nullptr);
    EXPECT_THAT(form_.events, ElementsAre("tvFolders_NodeClick Docs", "tvFolders_NodeClick web",
                                          "tvFolders_NodeClick web"));
}

TEST_F(Controls, AListViewFindsItsRowsAndForgetsTheSelectionWithThem) {
    EXPECT_EQ(form_.lvFiles.FindRow("B.JPG"), 1);
    EXPECT_EQ(form_.lvFiles.FindRow("b"), kNoEntry);
    EXPECT_FALSE(form_.lvFiles.UserClick(2));
    EXPECT_THROW(form_.lvFiles.SelectRow(2), std::out_of_range);
    form_.lvFiles.SelectRow(1);
    form_.lvFiles.Clear();
    EXPECT_EQ(form_.lvFiles.SelectedRow(), kNoEntry);
}

TEST_F(Controls, ANarrowerRangeMovesTheValueInside) {
    form_.hsPan.SetValue(400);
    form_.hsPan.SetLimits({0, 100});
    form_.hsPan.SetLimits({0, -50});
    EXPECT_EQ(form_.hsPan.Value(), 0);
    EXPECT_THAT(form_.events, ElementsAre("hsPan_Change", "hsPan_Change", "hsPan_Change"));
}

TEST_F(Controls, APictureTellsItsSizeUnlessItCannotBeShown) {
    const std::string jpeg("\xFF\xD8\xFF\xFF\xE0\0\4__\xFF\xC4\0\3_\xFF\xC2\0\x0B\x08\0\2\1\0", 24);
    const std::string bmp = "BM" + std::string(12, '_');
    const struct {
        std::string header;
        Size pixels;
    } pictures[] = {{{"GIF89a\x58\2\x20\0", 10}, {600, 32}},
                    {{"GIF89a\x20\x4E\x20\x4E", 10}, {}},  // 20000 x 20000
                    {jpeg, {256, 2}},
                    {jpeg.substr(0, 19), {}},
                    {{"\x89PNG\r\n\x1A\n____IHDR\0\0\1\0\0\0\0\7", 24}, {256, 7}},
                    {bmp + std::string("\x28\0\0\0\3\0\0\0\xFE\xFF\xFF\xFF", 12), {3, 2}},
                    {bmp + std::string("\x0C\0\0\0\3\0\4\0", 8), {3, 4}},
                    {"<html>", {}}};
    for (const auto& [header, pixels] : pictures) {
        form_.picPanned.SetPicture(header);
        EXPECT_EQ(form_.picPanned.NaturalSize(), (Size{pixels.width * 15, pixels.height * 15}))
            << testing::PrintToString(header);
    }
}

TEST_F(Controls, AFilterNamesTypesAndTheirPatternsInPairs) {
    const auto types = ReadFilter("Image files|*.gif; *.jpg||*.b|C|;|All Files|*.*|D");
    ASSERT_EQ(types.size(), 2u) << "a pair without one of its parts is left out";
    EXPECT_THAT(types[0].patterns, ElementsAre("*.gif", "*.jpg"));
    EXPECT_EQ(types[1].description, "All Files");
}

TEST_F(Controls, ATimerTicksOnlyWhenEnabled) {
    EXPECT_FALSE(form_.timer.Tick());
    form_.timer.SetEnabled(true);
    EXPECT_TRUE(form_.timer.Tick());
}

TEST_F(Controls, ACaptionMarksTheLetterThatAltReaches) {
    const struct {
        const char *marked, *read;
        char key;
        std::size_t at;
    } captions[] = {{"&Apply", "Apply", 'A', 0},
                    {"Tom && Jerry", "Tom & Jerry", 0, 0},
                    {"Tom & Jerry", "Tom & Jerry", 0, 0},
                    {"Tom & &Jerry &x", "Tom & Jerry x", 'J', 6},
                    {"\xC3\x84 Wal&z", "\xC3\x84 Walz", 'z', 6},
                    {"100 %&", "100 %&", 0, 0}};
    for (const auto& caption : captions) {
        Form form(toolkit_, {"frmLabel", {}, {}});
        const Label label(form, {"lbl", {}, caption.marked});
        EXPECT_EQ(label.Caption(), caption.read);
        EXPECT_EQ(label.AccessKey(), caption.key) << caption.marked;
        EXPECT_TRUE(caption.key == 0 || label.AccessKeyAt() == caption.at) << caption.marked;
    }
    form_.cmdApply.SetCaption("R&D");
    EXPECT_EQ(form_.cmdApply.Caption() + form_.cmdApply.AccessKey(), std::string("R&D\0", 4));
}

TEST_F(Controls, AScreenReaderHearsANameForEveryControl) {
    EXPECT_EQ(form_.cmdApply.AccessibleName(), "Apply");
    EXPECT_EQ(form_.vsQuality.AccessibleName(), "Quality");
    EXPECT_EQ(form_.txtQuality.AccessibleName(), "JPEG quality");
    EXPECT_EQ(form_.fraPick.AccessibleName(), "Elements");
}

}  // namespace
}  // namespace morpho::test
