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
                    {"\xC3\x84nder&n", "\xC3\x84ndern", 'n', 6},
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
