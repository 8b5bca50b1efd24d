#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

class WindowLayoutTest : public ThemeWindow {
  protected:
    WindowLayoutTest() { Open(); }
    void Resize(int width, int height, WindowState state = WindowState::kNormal) {
        window_->UserResize({0, 0, width, height}, {width - 120, height - 400}, state);
    }
};

TEST_F(WindowLayoutTest, StretchesTheListAndThePreviewAndMovesTheRestDown) {
    Resize(14120, 10400);
    EXPECT_EQ(window_->frameImageListControl.Place().top, 8485);
    EXPECT_EQ(window_->frameImageList.Place().height, 7765);
    EXPECT_EQ(window_->lstImageNames.Place().height, 7330);
    EXPECT_EQ(window_->frameMenu.Place().top, 9475);
    EXPECT_EQ(window_->lblStatus.Place().top, 9565);
    EXPECT_EQ(window_->frameProcess.Place().top, 7555);
    EXPECT_EQ(window_->framePreview.Place(), (Rectangle{2955, 60, 11015, 7405}));
    EXPECT_EQ(window_->picPreview.Place(), (Rectangle{30, 330, 10955, 6985}));
    EXPECT_EQ(window_->wbbImagePreview.Place(), window_->picPreview.Place());
}

TEST_F(WindowLayoutTest, StopsAtTheFirstMeasureThatIsNotPositive) {
    Resize(14120, 10400);
    window_->UserResize({0, 0, 14000, 10000}, {14000, 2000}, WindowState::kNormal);
    EXPECT_EQ(window_->frameImageListControl.Place().top, 485);
    EXPECT_EQ(window_->frameImageList.Place().height, 7765);
    EXPECT_EQ(window_->frameMenu.Place().top, 9475);
}

TEST_F(WindowLayoutTest, RaisesSmallerSizesToTheMinimumUnlessMinimised) {
    Resize(9000, 4000);
    EXPECT_EQ(window_->Bounds(), (Rectangle{0, 0, 11820, 6000}));
    Resize(9000, 8000);
    EXPECT_EQ(window_->Bounds(), (Rectangle{0, 0, 11820, 8000}));
    Resize(500, 500, WindowState::kMinimized);
    EXPECT_EQ(window_->Bounds().width, 500);
}

TEST_F(WindowLayoutTest, DoesNotMaximiseOnAScreenBelowTheMinimum) {
    Resize(9000, 8000, WindowState::kMaximized);
    ExpectMessage(
        1, "Minimum window size is more than the screen size.\r\nWindow cannot be maximized.", 16);
    EXPECT_EQ(window_->State(), WindowState::kNormal);
}

}  // namespace
}  // namespace morpho::test
