#include "image_editor/frm_jpeg_qf.h"
#include "platform/run_time_error.h"
#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

class ColorizationTest : public ThemeWindow {
  protected:
    ColorizationTest() { Open(); }

    void Apply(int hueDegrees) {
        window_->sldHue.UserSettle(hueDegrees);
        window_->cmdApply.UserClick();
    }

    void ExpectButtons(bool undo, bool redo) {
        EXPECT_EQ(window_->cmdUndo.Enabled(), undo);
        EXPECT_EQ(window_->cmdRedo.Enabled(), redo);
    }
};

TEST_F(ColorizationTest, AsksTheColorizerInItsOrder) {
    Tick({kButton});
    window_->sldBrightness.UserSettle(50);
    EXPECT_THAT(world_.colorizers.calls,
                ElementsAre("Hue 0", "Saturation 1", "Brightness 0.5", "Colorize", "Create",
                            "SourceFile " + Original("button.gif"),
                            "DestinationFile " + Working("button.gif"), "AuxParameter1 0",
                            "AuxParameter2 0", "Hue 0", "Saturation 1", "Brightness 0.5",
                            "Colorize", "SourceFile " + Working("button.gif"), "Release"));
    EXPECT_THAT(Log(), ElementsAre("Processing selection ( 1 items )...",
                                   "  active/navbutton-vert-normal (button.gif)...",
                                   "Selection processed", "Generating theme preview...",
                                   "  Loading preview HTML...", "  Performing substitutions...",
                                   "  Saving preview HTML...", "Theme preview generated."));
}

TEST_F(ColorizationTest, DraggingColoursTheBandAloneAndSettlingTheTickedElements) {
    Tick({kButton});
    window_->sldHue.UserScroll(-45);
    window_->sldSaturation.UserScroll(250);
    EXPECT_EQ(window_->lblHVal.Caption(), "-45");
    EXPECT_EQ(window_->lblSVal.Caption(), "250 %");
    EXPECT_EQ(window_->picBand.Picture(), "colour band|h-45 s2.5 b1");
    ExpectPicture("button.gif", "blends/button.gif");

    window_->sldHue.UserSettle(-45);
    ExpectPicture("button.gif", "blends/button.gif|h-45 s2.5 b1");
    ExpectPicture("bullet.gif", "blends/bullet.gif");
}

TEST_F(ColorizationTest, SettlingAgainRewritesThePendingStepUntilApplySealsIt) {
    Tick({kButton});
    window_->sldHue.UserSettle(40);
    window_->sldHue.UserSettle(50);
    ExpectPicture("button.gif", "blends/button.gif|h50 s1 b1");
    ExpectButtons(false, false);

    window_->cmdApply.UserClick();
    EXPECT_EQ(window_->lblHVal.Caption(), "0");
    EXPECT_EQ(window_->picBand.Picture(), "colour band|h0 s1 b1");
    ExpectButtons(true, false);

    window_->sldHue.UserSettle(60);
    ExpectPicture("button.gif", "blends/button.gif|h50 s1 b1|h60 s1 b1");
}

TEST_F(ColorizationTest, ApplyWithNeutralSlidersDoesNothingAtAll) {
    Tick({kButton});
    window_->sldHue.UserSettle(40);
    window_->sldHue.UserSettle(0);
    Forget();
    window_->cmdApply.UserClick();
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(world_.colorizers.calls, IsEmpty());
    window_->sldHue.UserSettle(50);
    EXPECT_EQ(window_->History().UndoDepth(), 1) << "the pending step stays pending";
}

TEST_F(ColorizationTest, WithNothingTickedItSaysSoAndPutsTheSlidersBack) {
    Tick({});
    window_->sldSaturation.UserSettle(40);
    ExpectMessage(
        1, "No theme elements have been selected. Please select one or more elements to process.",
        64);
    EXPECT_EQ(window_->lblSVal.Caption(), "100 %");
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_TRUE(window_->cmdApply.IsOperable());
}

TEST_F(ColorizationTest, UndoAndRedoRebuildWhatTheStepChangedAndTickIt) {
    Tick({kButton, kBullet});
    Apply(40);
    Tick({kBanner, kBullet});
    Apply(50);
    Tick({kLine});
    window_->lstImageNames.UserScroll(2);

    window_->cmdUndo.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kBullet, kNormalBanner));
    EXPECT_THAT(notices_, IsEmpty());
    EXPECT_EQ(window_->lstImageNames.TopIndex(), 2);
    ExpectPicture("bullet.gif", "blends/bullet.gif|h40 s1 b1");
    ExpectPicture("banner.gif", "blends/banner.gif|h0 s1 b1");  // a neutral step is a pass, too
    EXPECT_THAT(Log(), ElementsAre("Undo starts...", "  active/nav-banner-image (banner.gif)...",
                                   "  active/list-image-1 (bullet.gif)...",
                                   "  normal/nav-banner-image (Banner.GIF)...", "Undo over"));
    ExpectButtons(true, true);
    window_->cmdUndo.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kButton, kBullet));
    ExpectPicture("button.gif", "blends/button.gif");
    ExpectButtons(false, true);

    window_->cmdRedo.UserClick();
    window_->cmdRedo.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kBullet, kNormalBanner));
    ExpectPicture("bullet.gif", "blends/bullet.gif|h40 s1 b1|h50 s1 b1");
    EXPECT_EQ(Log().back(), "Redo over");
    ExpectButtons(true, false);

    window_->cmdUndo.UserClick();
    Apply(60);
    ExpectButtons(true, false);
    EXPECT_EQ(window_->History().RedoDepth(), 0);
}

TEST_F(ColorizationTest, ResetRestoresEveryOriginalByteForByte) {
    Tick({kButton});
    Apply(40);
    window_->sldHue.UserSettle(50);
    Forget();
    window_->cmdReset.UserClick();
    ExpectPicture("button.gif", "blends/button.gif");
    EXPECT_EQ(Ticked().size(), 7U);
    EXPECT_EQ(window_->lblHVal.Caption(), "0");
    ExpectButtons(false, false);
    EXPECT_EQ(Log().front(), "Reset starts...");
    EXPECT_THAT(Log(), Contains("Reset over"));

    world_.toolkit.WillAnswer(Answer::kNo);
    window_->UserClose();
    EXPECT_EQ(world_.toolkit.Messages().size(), 1U) << "the theme still counts as modified";
}

TEST_F(ColorizationTest, AsksTheJpegQualityOnceAStepAndGivesItToTheFirstJpegAlone) {
    Tick({kButton, kLine, kBackground});
    Apply(40);
    EXPECT_EQ(prompts_, 1);
    ExpectPicture("line.jpg", "blends/line.jpg|h40 s1 b1");  // rebuilt by Apply, not asked again
    window_->sldHue.UserSettle(50);
    EXPECT_EQ(prompts_, 2);
    ExpectPicture("line.jpg", "blends/line.jpg|h40 s1 b1 q60|h50 s1 b1 q60");
    ExpectPicture("back.JPEG", "blends/back.JPEG|h40 s1 b1|h50 s1 b1");
}

TEST_F(ColorizationTest, RefusesToCloseWhileItIsBusy) {
    Tick({kLine});
    world_.toolkit.WillPlay("frmJPEGQF", [this](Form& form) {
        EXPECT_FALSE(window_->cmdUndo.IsOperable() || window_->sldHue.IsOperable());
        EXPECT_EQ(window_->Pointer(), MousePointer::kHourglass);
        EXPECT_FALSE(window_->UserClose());
        dynamic_cast<frmJPEGQF&>(form).btnOK.UserClick();
    });
    window_->sldHue.UserSettle(40);
    EXPECT_TRUE(window_->sldHue.IsOperable());
    EXPECT_EQ(window_->Pointer(), MousePointer::kDefault);
    EXPECT_EQ(Setting("State"), "(none)");
    EXPECT_THAT(world_.toolkit.Messages(), IsEmpty());
}

TEST_F(ColorizationTest, AnElementThatFailsIsLeftSilentlyAndTheOthersGoOn) {
    Tick({kButton, kBullet});
    world_.colorizers.failAtPass = 2;  // the band is the first
    window_->sldHue.UserSettle(40);
    ExpectPicture("button.gif", "blends/button.gif");
    ExpectPicture("bullet.gif", "blends/bullet.gif|h40 s1 b1");
    EXPECT_THAT(world_.toolkit.Messages(), IsEmpty());
    EXPECT_THAT(window_->Renderer().Failures(), testing::SizeIs(1));
    EXPECT_FALSE(window_->IsRecoloured(kButton) || window_->IsRecoloured(kLine));
    EXPECT_TRUE(window_->IsRecoloured(kBullet));
}

TEST_F(ColorizationTest, AThumbThatIsStillHeldGoesBackToNeutralWithItsLabel) {
    Tick({kButton});
    Apply(40);
    window_->sldHue.UserScroll(70);
    window_->cmdUndo.UserClick();
    EXPECT_EQ(window_->sldHue.Value(), 0);
    EXPECT_EQ(window_->lblHVal.Caption(), "0");
}

TEST(EditHistory, Has41RowsAndNoMoreThan32767Steps) {
    EditHistory history;
    history.PopUndoStep();
    EXPECT_FALSE(history.GetUndoRecord(0));
    for (int step = 1; step <= 32767; ++step)
        history.PushUndoStep();
    EXPECT_THROW(history.PushUndoStep(), RunTimeError);
    EXPECT_TRUE(history.GetUndoRecordAt(40, 32767)->IsNeutral());
    EXPECT_FALSE(history.GetUndoRecordAt(40, 0));
    EXPECT_ANY_THROW(history.SetUndoRecord(41, 1, 0, 1));
}

}  // namespace
}  // namespace morpho::test
