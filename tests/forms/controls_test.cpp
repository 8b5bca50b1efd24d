#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/gallery.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

using Events = std::vector<std::string>;

class Controls : public testing::Test {
  protected:
    HeadlessToolkit toolkit_;
    Gallery form_{toolkit_};
};

TEST_F(Controls, ASliderScrollsAtEveryStepAndSettlesOnce) {
    Slider& slider = form_.sldHue;
    for (const int step : {5, 9, 9, 12})
        EXPECT_TRUE(slider.UserScroll(step));
    EXPECT_TRUE(slider.UserSettle(12));
    EXPECT_TRUE(slider.UserSettle(12));
    EXPECT_EQ(form_.events,
              (Events{"sldHue_Scroll", "sldHue_Scroll", "sldHue_Scroll", "sldHue_Change"}));
}

TEST_F(Controls, ValuesOutsideTheRangeBecomeTheNearestInside) {
    form_.sldHue.SetValue(-500);
    form_.vsQuality.SetValue(101);
    EXPECT_EQ(form_.sldHue.Value(), -180);
    EXPECT_EQ(form_.vsQuality.Value(), 100);
}

TEST_F(Controls, AHandlerMayPutTheValueBack) {
    form_.answer = [&] { form_.vsQuality.SetValue(1); };
    EXPECT_TRUE(form_.vsQuality.UserSet(0));
    EXPECT_EQ(form_.vsQuality.Value(), 1);
}

TEST_F(Controls, ATextBoxSwallowsTheKeysItsHandlerRefuses) {
    EXPECT_TRUE(form_.txtQuality.UserType("1a0-0.\b\bx"));
    EXPECT_EQ(form_.txtQuality.Text(), "1");
    EXPECT_EQ(form_.events.size(), 5u) << "a change for each key that got in";
    EXPECT_FALSE(form_.txtGuide.UserType("no")) << "it is read-only";
}

TEST_F(Controls, AListKnowsItsEntries) {
    EXPECT_EQ(form_.cmbTheme.FindExact("tom & jerry"), 1);
    EXPECT_EQ(form_.cmbTheme.FindExact("tom"), kNoEntry);
    EXPECT_EQ(form_.cmbTheme.Text(), "");
    EXPECT_THROW(form_.cmbTheme.SetListIndex(3), std::out_of_range);
    EXPECT_FALSE(form_.cmbTheme.UserSelect(3));

    form_.cmbTheme.SetListIndex(1);
    EXPECT_EQ(form_.cmbTheme.Text(), "Tom & Jerry");
    form_.cmbTheme.Clear();
    EXPECT_EQ(form_.cmbTheme.ListIndex(), kNoEntry);
}

TEST_F(Controls, ACheckListKeepsStateAndNumberOfEachEntry) {
    form_.lstNames.SetItemData(7, 70);
    form_.lstNames.SetSelected(7, true);
    form_.lstNames.SetSelected(9, true);
    EXPECT_EQ(form_.lstNames.ItemData(7), 70);
    EXPECT_EQ(form_.lstNames.SelectedCount(), 2);

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

TEST_F(Controls, AScreenReaderHearsANameForEveryControl) {
    const auto expectName = [](const Control& control, const char* name) {
        EXPECT_EQ(control.AccessibleName(), name) << control.Name();
    };
    expectName(form_.cmdApply, "Apply");
    expectName(form_.vsQuality, "Quality");
    expectName(form_.txtQuality, "JPEG quality");
    expectName(form_.fraPick, "Elements");
}

}  // namespace
}  // namespace morpho::test
