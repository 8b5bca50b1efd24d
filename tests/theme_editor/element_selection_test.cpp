#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

class ElementSelectionTest : public OpenThemeWindow {
  protected:
    // What the person ticks or clears, what is ticked then, and how often the notice has come.
    void ExpectTicked(const std::function<void()>& person, const std::vector<int>& rows,
                      std::size_t noticeCount) {
        person();
        EXPECT_EQ(Ticked(), rows);
        EXPECT_EQ(notices.size(), noticeCount);
    }
    std::function<void()> Check(int row, bool ticked) {
        return [=, this] { window->lstImageNames.UserCheck(row, ticked); };
    }
    std::function<void()> Click(CommandButton& button) {
        return [&] { button.UserClick(); };
    }
};

TEST_F(ElementSelectionTest, ElementsOfOneImageAreTickedTogetherWithOneNotice) {
    Tick({});
    ExpectTicked(Check(kButton, true), {kButton}, 0);
    ExpectTicked(Check(kNormalBanner, true), {kBanner, kButton, kNormalBanner}, 1);
    EXPECT_EQ(notices.back(),
              "Theme Morpho: In selecting or deselecting this element, you may have noticed that "
              "multiple theme elements were selected or deselected. This is because the image "
              "associated with this element is also used by other elements in this theme.");
    tickDontShow = true;
    ExpectTicked(Check(kBanner, false), {kButton}, 2);
    ExpectTicked(Check(kBanner, true), {kBanner, kButton, kNormalBanner}, 2);
    window->cmdSelectActive.UserClick();
    Open();
    ExpectTicked(Check(kBanner, false), {kButton, kBullet, kNormalBullet, kLine, kBackground}, 3);
}

TEST_F(ElementSelectionTest, TheButtonsForAllAndNoneNeitherShowTheNoticeNorSilenceIt) {
    Forget();
    ExpectTicked(Click(window->cmdSelectNone), {}, 0);
    ExpectTicked(Click(window->cmdSelectAll),
                 {kBanner, kButton, kBullet, kNormalBanner, kNormalBullet, kLine, kBackground}, 0);
    EXPECT_THAT(Log(),
                ElementsAre("Deselecting all theme elements...", "All theme elements deselected.",
                            "Selecting all theme elements...", "All theme elements selected."));
    ExpectTicked(Check(kBanner, false), {kButton, kBullet, kNormalBullet, kLine, kBackground}, 1);
}

TEST_F(ElementSelectionTest, SelectActiveAndNormalAddElementsAndWhatSharesTheirImages) {
    Tick({kLine});
    window->lstImageNames.UserScroll(2);
    window->lstImageNames.UserSelect(4);
    ExpectTicked(Click(window->cmdSelectActive), {kBanner, kButton, kBullet, kNormalBanner, kLine},
                 1);
    EXPECT_EQ(window->lstImageNames.TopIndex(), 2);
    EXPECT_EQ(window->lstImageNames.ListIndex(), 4);
    ExpectTicked(Click(window->cmdSelectNormal),
                 {kBanner, kButton, kBullet, kNormalBanner, kNormalBullet, kLine}, 1);
    EXPECT_THAT(
        Log(),
        ElementsAre("Selecting active theme elements...", "Active theme elements selected.",
                    "Selecting normal theme elements...", "Normal theme elements selected."));
}

}  // namespace
}  // namespace morpho::test
