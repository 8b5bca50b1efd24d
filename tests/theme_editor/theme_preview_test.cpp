#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

constexpr const char* kPage = "C:\\Temp\\Morpho\\Theme.htm";

using ThemePreviewTest = ThemeWindow;

TEST_F(ThemePreviewTest, FillsThePlacesOfAllListedElementsAndLeavesTheOthers) {
    Open();
    Tick({kBackground});
    window_->sldHue.UserSettle(40);
    EXPECT_EQ(world_.files.Bytes(kPage),
              "<blends\\bullet.gif><blends\\banner.gif><blends\\Banner.GIF>"
              "<#global/top-bar-button#>\xE9" +
                  std::string(2, '\0') + "\r\n");
}

TEST_F(ThemePreviewTest, WritesWhatTheCodePageLacksAsNumericReferences) {
    PutTheme("\xE2\x82\xAC\xCE\xA9", "Greek", {{"active/list-image-1", "dot.gif"}});
    Open().cmbThemeLabel.UserSelect(2);
    EXPECT_THAT(world_.files.Bytes(kPage), HasSubstr("<\x80&#937;\\dot.gif>"));
}

TEST_F(ThemePreviewTest, NavigatesOnceAndThenOnlyReadsAgain) {
    Open();
    EXPECT_THAT(browser_.asked, ElementsAre("navigate"));
    EXPECT_EQ(window_->wbbImagePreview.Address(), kPage);
    EXPECT_EQ(window_->wbbImagePreview.NavigationFlags(), 14);

    Tick({kButton});
    window_->sldHue.UserSettle(40);
    window_->cmdApply.UserClick();
    window_->cmdUndo.UserClick();
    window_->cmdRedo.UserClick();
    window_->cmdReset.UserClick();
    EXPECT_THAT(browser_.asked, ElementsAre("refresh", "refresh", "refresh completely",
                                            "refresh completely", "refresh"));
}

TEST_F(ThemePreviewTest, APageThatCannotBeWrittenIsIgnored) {
    world_.files.FailOn(kPage);
    Open();
    EXPECT_FALSE(world_.files.HasFile(kPage));
    EXPECT_THAT(browser_.asked, ElementsAre("navigate"));
    EXPECT_EQ(Log().back(), "TM loaded");
}

}  // namespace
}  // namespace morpho::test
