#include "image_editor/frm_jpeg_qf.h"
#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

class ColorizationTest : public OpenThemeWindow {
  protected:
    void Apply(int hueDegrees) {
        window->sldHue.UserSettle(hueDegrees);
        window->cmdApply.UserClick();
    }
};

TEST_F(ColorizationTest, AsksTheColorizerInItsOrder) {
    Tick({kButton});
    window->sldBrightness.UserSettle(50);
    const std::string original = kHostThemes + "blends\\button.gif";
    const std::string work = kWorkRoot + "blends\\button.gif";
    EXPECT_THAT(world.colorizers.calls,
                ElementsAre("Hue 0", "Saturation 1", "Brightness 0.5", "Colorize", "Create",
                            "SourceFile " + original, "DestinationFile " + work, "AuxParameter1 0",
                            "AuxParameter2 0", "Hue 0", "Saturation 1", "Brightness 0.5",
                            "Colorize", "SourceFile " + work, "Release"));
    EXPECT_THAT(Log(), ElementsAre("Processing selection ( 1 items )...",
                                   "  active/navbutton-vert-normal (button.gif)...",
                                   "Selection processed", "Generating theme preview...",
                                   "  Loading preview HTML...", "  Performing substitutions...",
                                   "  Saving preview HTML...", "Theme preview generated."));
}

TEST_F(ColorizationTest, DraggingColoursTheBandAloneAndSettlingTheTickedElements) {
    Tick({kButton});
    window->sldHue.UserScroll(-45);
    window->sldSaturation.UserScroll(250);
    EXPECT_EQ(window->lblHVal.Caption() + " " + window->lblSVal.Caption(), "-45 250 %");
    EXPECT_EQ(window->picBand.Picture(), "colour band|h-45 s2.5 b1");
    ExpectPicture("button.gif", "blends/button.gif");

    window->sldHue.UserSettle(-45);
    ExpectPicture("button.gif", "blends/button.gif|h-45 s2.5 b1");
    ExpectPicture("bullet.gif", "blends/bullet.gif");
}

TEST_F(ColorizationTest, ApplyWithNeutralSlidersDoesNothingAtAll) {
    Tick({kButton});
    window->sldHue.UserSettle(40);
    window->sldHue.UserSettle(0);
    Forget();
    window->cmdApply.UserClick();
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(world.colorizers.calls, IsEmpty());
}

TEST_F(ColorizationTest, WithNothingTickedItSaysSoAndPutsTheSlidersBack) {
    Tick({});
    window->sldSaturation.UserSettle(40);
    ExpectMessage(
        1, "No theme elements have been selected. Please select one or more elements to process.",
        64);
    EXPECT_EQ(window->lblSVal.Caption(), "100 %");
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_TRUE(window->cmdApply.IsOperable());
}

TEST_F(ColorizationTest, UndoAndRedoKeepTheNoticeQuietAndTheListInPlace) {
    Tick({kBanner, kBullet});
    Apply(50);
    Tick({kLine});
    window->lstImageNames.UserScroll(2);
    window->cmdUndo.UserClick();
    EXPECT_THAT(Ticked(), ElementsAre(kBanner, kBullet, kNormalBanner));
    EXPECT_THAT(notices, IsEmpty());
    EXPECT_EQ(window->lstImageNames.TopIndex(), 2);
    EXPECT_THAT(Log(), ElementsAre("Undo starts...", "  active/nav-banner-image (banner.gif)...",
                                   "  active/list-image-1 (bullet.gif)...",
                                   "  normal/nav-banner-image (Banner.GIF)...", "Undo over"));
    window->cmdRedo.UserClick();
    EXPECT_EQ(Log().back(), "Redo over");
}

TEST_F(ColorizationTest, ResetPutsTheSlidersBackAndLeavesTheThemeModified) {
    Tick({kButton});
    Apply(40);
    window->sldHue.UserSettle(50);
    Forget();
    window->cmdReset.UserClick();
    EXPECT_EQ(window->lblHVal.Caption(), "0");
    EXPECT_EQ(window->picBand.Picture(), "colour band|h0 s1 b1");
    EXPECT_EQ(Log().front(), "Reset starts...");
    EXPECT_THAT(Log(), Contains("Reset over"));
    world.toolkit.WillAnswer(Answer::kNo);
    window->UserClose();
    EXPECT_EQ(world.toolkit.Messages().size(), 1U);
}

TEST_F(ColorizationTest, AsksTheJpegQualityOnceAStepAndGivesItToTheFirstJpegAlone) {
    Tick({kButton, kLine, kBackground});
    Apply(40);
    EXPECT_EQ(prompts, 1);
    ExpectPicture("line.jpg", "blends/line.jpg|h40 s1 b1");  // rebuilt by Apply, not asked again
    window->sldHue.UserSettle(50);
    EXPECT_EQ(prompts, 2);
    ExpectPicture("line.jpg", "blends/line.jpg|h40 s1 b1 q60|h50 s1 b1 q60");
    ExpectPicture("back.JPEG", "blends/back.JPEG|h40 s1 b1|h50 s1 b1");
}

TEST_F(ColorizationTest, RefusesToCloseWhileItIsBusyAndGivesTheFocusBack) {
    Tick({kLine});
    window->sldHue.SetFocus();
    world.toolkit.WillPlay("frmJPEGQF", [this](Form& form) {
        EXPECT_FALSE(window->cmdUndo.IsOperable() || window->sldHue.IsOperable());
        EXPECT_EQ(window->Pointer(), MousePointer::kHourglass);
        EXPECT_FALSE(window->UserClose());
        window->cmdCancel.SetFocus();
        dynamic_cast<frmJPEGQF&>(form).btnOK.UserClick();
    });
    window->sldHue.UserSettle(40);
    EXPECT_TRUE(window->sldHue.IsOperable());
    EXPECT_EQ(window->Focused(), &window->sldHue);
    EXPECT_EQ(window->Pointer(), MousePointer::kDefault);
    EXPECT_EQ(Setting("State"), "(none)");
    EXPECT_THAT(world.toolkit.Messages(), IsEmpty());
}

TEST_F(ColorizationTest, AnElementThatFailsIsLeftSilentlyAndTheOthersGoOn) {
    Tick({kButton, kBullet});
    world.colorizers.failAtPass = 2;  // the band is the first
    window->sldHue.UserSettle(40);
    ExpectPicture("button.gif", "blends/button.gif");
    ExpectPicture("bullet.gif", "blends/bullet.gif|h40 s1 b1");
    EXPECT_THAT(world.toolkit.Messages(), IsEmpty());
}

}  // namespace
}  // namespace morpho::test
