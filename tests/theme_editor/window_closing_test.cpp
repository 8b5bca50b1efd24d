#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

using WindowClosingTest = ThemeWindow;

TEST_F(WindowClosingTest, KeepsThePlacementAndLeavesNoWorkFolder) {
    Open();
    Forget();
    window_->SetBounds({150, 300, 12000, 9000});
    EXPECT_TRUE(window_->UserClose());
    EXPECT_FALSE(world_.files.HasFolder("C:\\Temp\\Morpho"));
    EXPECT_THAT(Log(), ElementsAre("Unloading TM"));
    EXPECT_EQ(Setting("State"), "0");

    Open();
    EXPECT_EQ(window_->Bounds(), (Rectangle{150, 300, 12000, 9000}));
    window_->SetState(WindowState::kMaximized);
    window_->cmdCancel.UserClick();
    EXPECT_EQ(Setting("State"), "2");
    EXPECT_EQ(Open().State(), WindowState::kMaximized);
}

TEST_F(WindowClosingTest, GoesOnWhenTheWorkFolderCannotBeDeleted) {
    Open();
    world_.files.FailOn("C:\\Temp\\Morpho");
    EXPECT_TRUE(window_->UserClose());
    EXPECT_EQ(Log().back(), "Unloading TM");
}

TEST_F(WindowClosingTest, AsksAboutUnsavedChangesAndNeedsANoToDropThem) {
    Open();
    Tick({kButton});
    window_->sldHue.UserSettle(40);
    Forget();
    for (const Answer answer : {Answer::kCancel, Answer::kYes, Answer::kNo}) {
        Forget();
        const bool closes = answer == Answer::kNo;  // this user has no folders to save to
        const std::size_t told = world_.toolkit.Messages().size();
        world_.toolkit.WillAnswer(answer);
        EXPECT_EQ(window_->UserClose(), closes);
        ExpectNthMessage(told + 1,
                         "Theme \"Blends\" modified.\r\nDo you wish to save the changes ?", 35);
        EXPECT_EQ(Setting("State"), closes ? "0" : "(none)");
        EXPECT_EQ(world_.files.HasFolder("C:\\Temp\\Morpho"), !closes);
    }
    EXPECT_THAT(Log(), ElementsAre("Unloading TM"));
}

}  // namespace
}  // namespace morpho::test
