#include "theme_editor/frm_prompt_duplicate.h"
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

TEST_F(ElementSelectionTest, AnElementWithItsOwnImageIsTickedAloneWithoutNotice) {
    Tick({});
    window_->lstImageNames.UserCheck(kButton, true);
    EXPECT_THAT(Ticked(), ElementsAre(kButton));
    EXPECT_EQ(notices_, 0);
}

TEST_F(ElementSelectionTest, ElementsOfOneImageAreTickedTogetherWithOneNotice) {
    Tick({});
    window_->lstImageNames.UserCheck(kNormalBanner, true);
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kNormalBanner));
    EXPECT_EQ(notices_, 1);

    window_->lstImageNames.UserCheck(kBanner, false);
    EXPECT_THAT(Ticked(), IsEmpty());
    EXPECT_EQ(notices_, 2);
}

TEST_F(ElementSelectionTest, TheNoticeStaysAwayOnceThePersonHasHadEnoughUntilTheWindowIsReopened) {
    tickDontShow_ = true;
    Tick({});
    window_->lstImageNames.UserCheck(kBanner, true);
    window_->lstImageNames.UserCheck(kBanner, false);
    window_->cmdSelectActive.UserClick();
    EXPECT_EQ(notices_, 1);

    Open().lstImageNames.UserCheck(kBanner, false);
    EXPECT_EQ(notices_, 2);
}

TEST_F(ElementSelectionTest, TheButtonsForAllAndNoneNeverShowTheNotice) {
    Forget();
    window_->cmdSelectNone.UserClick();
    EXPECT_THAT(Ticked(), IsEmpty());
    window_->cmdSelectAll.UserClick();
    EXPECT_EQ(Ticked().size(), 7U);
    EXPECT_EQ(notices_, 0);
    EXPECT_THAT(Log(),
                ElementsAre("Deselecting all theme elements...", "All theme elements deselected.",
                            "Selecting all theme elements...", "All theme elements selected."));

    window_->lstImageNames.UserCheck(kBanner, false);
    EXPECT_EQ(notices_, 1) << "but they do not silence it";
}

TEST_F(ElementSelectionTest, SelectActiveAddsTheActiveElementsAndWhatSharesTheirImages) {
    Tick({kLine});
    window_->lstImageNames.UserScroll(2);
    window_->lstImageNames.UserSelect(4);
    window_->cmdSelectActive.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kButton, kBullet, kNormalBanner, kLine));
    EXPECT_EQ(notices_, 1);
    EXPECT_THAT(Log(), ElementsAre("Selecting active theme elements...",
                                   "Active theme elements selected."));
    EXPECT_EQ(window_->lstImageNames.TopIndex(), 2);
    EXPECT_EQ(window_->lstImageNames.ListIndex(), 4);

    window_->cmdSelectActive.UserClick();
    EXPECT_EQ(notices_, 1) << "nothing changed this time";
}

TEST_F(ElementSelectionTest, SelectNormalAddsTheNormalElements) {
    Tick({kBackground});
    window_->cmdSelectNormal.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kNormalBanner, kNormalBullet, kLine, kBackground));
    EXPECT_EQ(notices_, 1);
    EXPECT_THAT(Log(), ElementsAre("Selecting normal theme elements...",
                                   "Normal theme elements selected."));
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
    EXPECT_EQ(window_->sldHue.Value(), 0);
    EXPECT_EQ(window_->lblHVal.Caption(), "0");
    EXPECT_TRUE(window_->cmdUndo.Enabled());
    EXPECT_FALSE(window_->cmdRedo.Enabled());

    window_->sldHue.UserSettle(50);
    EXPECT_EQ(window_->History().UndoDepth(), 2);
    EXPECT_EQ(PictureBytes("button.gif"), "blends/button.gif|h40 s1 b1|h50 s1 b1");
    EXPECT_EQ(PictureBytes("bullet.gif"), "blends/bullet.gif|h0 s1 b1|h50 s1 b1");
}

TEST_F(ElementSelectionTest, TheNoticeSaysWhyUnderTheProductsName) {
    std::string said;
    world_.toolkit.WillPlay("frmPromptDuplicate", [&](Form& form) {
        auto& notice = dynamic_cast<frmPromptDuplicate&>(form);
        said = notice.Caption() + ": " + notice.lblMessage.Caption();
        EXPECT_TRUE(notice.imgInformation.Visible());
        EXPECT_FALSE(notice.imgStop.Visible() || notice.imgQuestion.Visible());
        notice.btnOK.UserClick();
    });
    window_->lstImageNames.UserCheck(kBanner, false);
    EXPECT_EQ(said,
              "Theme Morpho: In selecting or deselecting this element, you may have noticed that "
              "multiple theme elements were selected or deselected. This is because the image "
              "associated with this element is also used by other elements in this theme.");
}

}  // namespace

}  // namespace morpho::test
