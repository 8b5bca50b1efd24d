#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

class ElementSelectionTest : public ThemeWindow {
  protected:
    ElementSelectionTest() { Open(); }
};

TEST_F(ElementSelectionTest, GroupsElementsOfOneImageInOrderOfAppearance) {
    std::vector<int> groups;
    for (int row = 0; row < window_->lstImageNames.ListCount(); ++row)
        groups.push_back(window_->lstImageNames.ItemData(row));
    EXPECT_THAT(groups, ElementsAre(1, 2, 3, 1, 4, 5, 6));

    window_->cmbThemeLabel.UserSelect(1);
    EXPECT_EQ(window_->lstImageNames.ItemData(0), 1) << "each theme counts from 1";
}

TEST_F(ElementSelectionTest, ElementsOfOneImageAreTickedTogetherWithOneNotice) {
    Tick({});
    window_->lstImageNames.UserCheck(kButton, true);
    EXPECT_THAT(Ticked(), ElementsAre(kButton));
    EXPECT_THAT(notices_, IsEmpty());

    window_->lstImageNames.UserCheck(kNormalBanner, true);
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kButton, kNormalBanner));
    EXPECT_THAT(
        notices_,
        ElementsAre(
            "Theme Morpho: In selecting or deselecting this element, you may have noticed that "
            "multiple theme elements were selected or deselected. This is because the image "
            "associated with this element is also used by other elements in this theme."));

    window_->lstImageNames.UserCheck(kBanner, false);
    EXPECT_THAT(Ticked(), ElementsAre(kButton));
    EXPECT_EQ(notices_.size(), 2U);
}

TEST_F(ElementSelectionTest, TheNoticeStaysAwayOnceThePersonHasHadEnoughUntilTheWindowIsReopened) {
    tickDontShow_ = true;
    Tick({});
    window_->lstImageNames.UserCheck(kBanner, true);
    window_->lstImageNames.UserCheck(kBanner, false);
    window_->cmdSelectActive.UserClick();
    EXPECT_EQ(notices_.size(), 1U);

    Open().lstImageNames.UserCheck(kBanner, false);
    EXPECT_EQ(notices_.size(), 2U);
}

TEST_F(ElementSelectionTest, TheButtonsForAllAndNoneNeitherShowTheNoticeNorSilenceIt) {
    Forget();
    window_->cmdSelectNone.UserClick();
    EXPECT_THAT(Ticked(), IsEmpty());
    window_->cmdSelectAll.UserClick();
    EXPECT_EQ(Ticked().size(), 7U);
    EXPECT_THAT(notices_, IsEmpty());
    EXPECT_THAT(Log(),
                ElementsAre("Deselecting all theme elements...", "All theme elements deselected.",
                            "Selecting all theme elements...", "All theme elements selected."));
    window_->lstImageNames.UserCheck(kBanner, false);
    EXPECT_EQ(notices_.size(), 1U);
}

TEST_F(ElementSelectionTest, SelectActiveAndNormalAddElementsAndWhatSharesTheirImages) {
    Tick({kLine});
    window_->lstImageNames.UserScroll(2);
    window_->lstImageNames.UserSelect(4);
    window_->cmdSelectActive.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kButton, kBullet, kNormalBanner, kLine));
    EXPECT_EQ(notices_.size(), 1U);
    EXPECT_EQ(window_->lstImageNames.TopIndex(), 2);
    EXPECT_EQ(window_->lstImageNames.ListIndex(), 4);

    window_->cmdSelectNormal.UserClick();
    EXPECT_THAT(Ticked(),
                ElementsAre(kBanner, kButton, kBullet, kNormalBanner, kNormalBullet, kLine));
    EXPECT_EQ(notices_.size(), 1U) << "no shared image changed this time";
    EXPECT_THAT(
        Log(),
        ElementsAre("Selecting active theme elements...", "Active theme elements selected.",
                    "Selecting normal theme elements...", "Normal theme elements selected."));
}

TEST_F(ElementSelectionTest, TickingLeavesUndoAndRedoAloneWhileTheSlidersAreNeutral) {
    Tick({kButton});
    window_->sldHue.UserSettle(40);
    window_->cmdApply.UserClick();
    window_->cmdUndo.UserClick();
    window_->lstImageNames.UserCheck(kBullet, true);
    EXPECT_FALSE(window_->cmdUndo.Enabled());
    EXPECT_TRUE(window_->cmdRedo.Enabled());
}

TEST_F(ElementSelectionTest, TickingEndsThePendingStepWhileTheSlidersAreOffNeutral) {
    Tick({kButton});
    window_->sldHue.UserSettle(40);
    window_->lstImageNames.UserCheck(kBullet, true);
    EXPECT_EQ(window_->lblHVal.Caption(), "0");
    EXPECT_TRUE(window_->cmdUndo.Enabled());
    EXPECT_FALSE(window_->cmdRedo.Enabled());

    window_->sldHue.UserSettle(50);
    ExpectPicture("button.gif", "blends/button.gif|h40 s1 b1|h50 s1 b1");
    ExpectPicture("bullet.gif", "blends/bullet.gif|h0 s1 b1|h50 s1 b1");
}

}  // namespace
}  // namespace morpho::test
