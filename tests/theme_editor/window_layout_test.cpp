#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

class WindowLayoutTest : public OpenThemeWindow {
  protected:
    void Resize(int width, int height, WindowState state = WindowState::kNormal) {
        window->UserResize({0, 0, width, height}, {width - 120, height - 400}, state);
    }
    // The places in the column on the left: the buttons' top, the lists' heights, the menu's top.
    void ExpectLeft(int controlTop, int listHeight, int namesHeight, int menuTop) {
        EXPECT_EQ(window->frameImageListControl.Place().top, controlTop);
        EXPECT_EQ(window->frameImageList.Place().height, listHeight);
        EXPECT_EQ(window->lstImageNames.Place().height, namesHeight);
        EXPECT_EQ(window->frameMenu.Place().top, menuTop);
    }
};

TEST_F(WindowLayoutTest, StretchesTheListAndThePreviewAndMovesTheRestDown) {
    Resize(14120, 10400);
    ExpectLeft(8485, 7765, 7330, 9475);
    EXPECT_EQ(window->lblStatus.Place().top, 9565);
    EXPECT_EQ(window->frameProcess.Place().top, 7555);
    EXPECT_EQ(window->framePreview.Place(), (Rectangle{2955, 60, 11015, 7405}));
    EXPECT_EQ(window->picPreview.Place(), (Rectangle{30, 330, 10955, 6985}));
    EXPECT_EQ(window->wbbImagePreview.Place(), window->picPreview.Place());
    // The first measure that is not positive ends the layout.
    window->UserResize({0, 0, 14000, 10000}, {14000, 2000}, WindowState::kNormal);
    ExpectLeft(485, 7765, 7330, 9475);
}

TEST_F(WindowLayoutTest, RaisesSmallerSizesToTheMinimumUnlessMinimised) {
    Resize(9000, 4000);
    EXPECT_EQ(window->Bounds(), (Rectangle{0, 0, 11820, 6000}));
    Resize(500, 500, WindowState::kMinimized);
    EXPECT_EQ(window->Bounds().width, 500);
    Resize(9000, 8000, WindowState::kMaximized);
    ExpectMessage(
        1, "Minimum window size is more than the screen size.\r\nWindow cannot be maximized.", 16);
    EXPECT_EQ(window->State(), WindowState::kNormal);
    EXPECT_EQ(window->Bounds(), (Rectangle{0, 0, 11820, 8000}));
}

TEST_F(WindowLayoutTest, ClosingKeepsThePlacementAndLeavesNoWorkFolder) {
    Forget();
    window->SetBounds({150, 300, 12000, 9000});
    EXPECT_TRUE(window->UserClose());
    EXPECT_FALSE(world.files.HasFolder(kWorkRoot));
    EXPECT_THAT(Log(), ElementsAre("Unloading TM"));
    EXPECT_EQ(Setting("State"), "0");

    EXPECT_EQ(Open().Bounds(), (Rectangle{150, 300, 12000, 9000}));
    window->SetState(WindowState::kMaximized);
    window->cmdCancel.UserClick();
    EXPECT_EQ(Setting("State"), "2");
    EXPECT_EQ(Open().State(), WindowState::kMaximized);

    world.files.FailOn(kWorkRoot);  // what cannot be deleted does not keep the window open
    EXPECT_TRUE(window->UserClose());
}

TEST_F(WindowLayoutTest, ClosingAsksAboutUnsavedChangesAndNeedsANoToDropThem) {
    Tick({kButton});
    window->sldHue.UserSettle(40);
    for (const Answer answer : {Answer::kCancel, Answer::kYes, Answer::kNo}) {
        Forget();
        const bool closes = answer == Answer::kNo;  // this user has no folders to save to
        const std::size_t told = world.toolkit.Messages().size();
        world.toolkit.WillAnswer(answer);
        EXPECT_EQ(window->UserClose(), closes);
        EXPECT_THAT(world.toolkit.Messages()[told].text, HasSubstr("\"Blends\" modified."));
        EXPECT_EQ(Setting("State"), closes ? "0" : "(none)");
        EXPECT_EQ(world.files.HasFolder(kWorkRoot), !closes);
    }
    EXPECT_THAT(Log(), ElementsAre("Unloading TM"));
}

}  // namespace
}  // namespace morpho::test
