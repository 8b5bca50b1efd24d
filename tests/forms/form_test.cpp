#include <gmock/gmock.h>

#include "forms/gallery.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;

class FormTest : public testing::Test {
  protected:
    HeadlessToolkit toolkit_;
    Gallery form_{toolkit_};
};

TEST_F(FormTest, LoadsOnceAndPaintsAtEveryShowing) {
    toolkit_.WillPlay("frmGallery", [](Form& form) { form.Hide(); });
    form_.ShowModal();
    EXPECT_TRUE(form_.IsLoaded());
    form_.ShowModal();
    EXPECT_THAT(form_.events, ElementsAre("Form_Load", "Form_Paint", "Form_Paint"));
}

TEST_F(FormTest, AsksBeforeItGoesAndTellsWhoWantsIt) {
    form_.Load();
    form_.refuseClosing = true;
    EXPECT_FALSE(form_.UserClose());
    form_.Unload();
    EXPECT_TRUE(form_.IsLoaded());
    form_.refuseClosing = false;
    EXPECT_TRUE(form_.UserClose());
    EXPECT_THAT(form_.events, ElementsAre("Form_Load", "Form_QueryUnload by user",
                                          "Form_QueryUnload", "Form_QueryUnload by user"));
}

TEST_F(FormTest, AHandlerKeepsTheFormOpenAndMayOpenAnotherThatAPersonWorks) {
    form_.Load();
    Gallery inner(toolkit_);
    toolkit_.WillPlay("frmGallery", [&](Form& form) {
        EXPECT_FALSE(form_.UserClose() || form_.UserEscape());
        form_.chkApply.SetValue(true);  // a handler within the handler
        EXPECT_FALSE(form_.UserClose());
        EXPECT_TRUE(inner.sldHue.UserSettle(30));
        EXPECT_TRUE(form.UserEscape());
    });
    form_.answer = [&] {
        form_.answer = {};
        inner.ShowModal();
    };
    form_.cmdApply.UserClick();
    EXPECT_FALSE(inner.IsLoaded());
    EXPECT_THAT(form_.events, ElementsAre("Form_Load", "cmdApply_Click", "chkApply_Click"));
    EXPECT_TRUE(form_.UserClose());
}

TEST_F(FormTest, TheBordersMayBeKnownBeforeItLoads) {
    form_.SetChrome({120, 400});
    EXPECT_EQ(form_.Inner(), Gallery::kMinimum);
    EXPECT_EQ(form_.Bounds().height, Gallery::kMinimum.height + 400);
    EXPECT_THAT(form_.events, testing::IsEmpty());
}

TEST_F(FormTest, ResizesOncePerChangeOfSizeOrStateAndNotForAMove) {
    const auto expectResizes = [&](std::size_t count, const char* why) {
        EXPECT_EQ(form_.events.size(), count) << why;
        form_.events.clear();
    };
    form_.SetBounds({300, 300, 12000, 7000});
    expectResizes(1, "code sets another size");
    form_.SetBounds({600, 300, 12000, 7000});
    expectResizes(0, "code moves the window");
    form_.UserResize({0, 0, 12000, 7000}, {12000, 7000}, WindowState::kNormal);
    expectResizes(0, "the person moves the window");
    form_.UserResize({0, 0, 12000, 7000}, {11900, 6600}, WindowState::kNormal);
    expectResizes(1, "the borders become known");
    EXPECT_EQ(form_.Inner(), (Size{11900, 6600}));
    form_.UserResize({0, 0, 12000, 7000}, {11900, 6600}, WindowState::kMaximized);
    expectResizes(1, "the window is maximised");
    form_.UserResize({0, 0, 9000, 7000}, {8900, 6600}, WindowState::kNormal);
    expectResizes(2, "the form sets its smallest size");
    EXPECT_EQ(form_.Bounds().width, Gallery::kMinimum.width);
}

TEST_F(FormTest, EveryErrorOfAHandlerIsTrapped) {
    const auto expectFailure = [&](const std::function<void()>& answer, const char* failure) {
        form_.answer = answer;
        form_.cmdApply.UserClick();
        EXPECT_EQ(form_.failures.back(), failure);
    };
    expectFailure([] { throw std::bad_alloc(); }, "cmdApply_Click: Out of memory");
    expectFailure([] { throw 7; }, "cmdApply_Click: Unknown error");
    expectFailure([&] { form_.lstPlain.SetListIndex(9); }, "cmdApply_Click: list index");
}

TEST_F(FormTest, WithoutAScriptTheHeadlessToolkitChangesLeastAndRemembers) {
    const auto expectAnswer = [&](int flags, Answer answer, std::size_t unscripted) {
        EXPECT_EQ(form_.MsgBox("Save?", flags, "Gallery"), answer) << flags;
        EXPECT_EQ(toolkit_.Unscripted().size(), unscripted) << flags;
    };
    expectAnswer(kYesNoCancel | kQuestionIcon, Answer::kCancel, 1);
    expectAnswer(kYesNo, Answer::kNo, 2);
    toolkit_.WillAnswer(Answer::kYes);
    expectAnswer(kOkOnly | kInformationIcon, Answer::kOk, 2);  // no question
    expectAnswer(kYesNo, Answer::kYes, 2);
    EXPECT_EQ(toolkit_.Messages().size(), 4u);

    toolkit_.WillChoose("Z:\\a.gif");
    EXPECT_EQ(toolkit_.ShowFileDialog(&form_, {}), "Z:\\a.gif");
    EXPECT_EQ(toolkit_.ShowFileDialog(&form_, {.title = "Open"}), std::nullopt);
    EXPECT_EQ(toolkit_.Unscripted().back(), "No answer to the file dialog Open");

    form_.ShowModal();
    EXPECT_EQ(toolkit_.Unscripted().back(), "Nobody plays the form frmGallery");
    toolkit_.WillPlay("frmGallery", [](Form&) {});
    form_.ShowModal();
    EXPECT_EQ(toolkit_.Unscripted().back(), "The form frmGallery was left open");
    EXPECT_FALSE(form_.IsVisible());
}

}  // namespace
}  // namespace morpho::test
