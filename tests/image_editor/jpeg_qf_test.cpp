#include <gtest/gtest.h>

#include "image_editor/frm_jpeg_qf.h"
#include "support/fake_platform.h"
#include "support/form_layout.h"

namespace morpho::test {

namespace {

class JpegQualityTest : public ::testing::Test {
  protected:
    void ExpectBoth(const std::string& text, int value, const char* what) {
        EXPECT_EQ(form_.txtQF.Text(), text) << what;
        EXPECT_EQ(form_.vsQF.Value(), value) << what;
    }

    FakePlatform world_;
    frmJPEGQF form_{world_.program};
};

}  // namespace

TEST_F(JpegQualityTest, StartsAt75) {
    ExpectBoth("75", 75, "at the start");
    ExpectWellLaidOut(form_);
}

TEST_F(JpegQualityTest, KeepsBoxAndScrollBarTogetherWhateverIsTyped) {
    const struct {
        const char* keys;  // after the box was made to hold 42
        const char* text;
        int value;
    } cases[] = {
        {"", "42", 42},          {"\b", "4", 4},          {"\b0", "40", 40},
        {"5", "42", 42},         {"a-+.,e \t", "42", 42}, {"\b\b", "1", 1},
        {"\b\b\b\b", "1", 1},    {"\b\b00", "100", 100},  {"\b\b000", "100", 100},
        {"\b\b005", "100", 100}, {"\b\b00\b", "10", 10},  {"\b\b7", "17", 17},
    };
    for (const auto& one : cases) {
        form_.txtQF.UserEdit("42");
        form_.txtQF.UserType(one.keys);
        ExpectBoth(one.text, one.value, one.keys);
    }
}

TEST_F(JpegQualityTest, TakesPastedTextsByTheNumberInFront) {
    const struct {
        const char* pasted;
        const char* text;
        int value;
    } cases[] = {{"0", "1", 1},    {"", "1", 1},        {"abc", "1", 1},   {"500", "75", 75},
                 {"-5", "75", 75}, {"100", "100", 100}, {"1e9", "75", 75}, {"60.5", "60", 60}};
    for (const auto& one : cases) {
        frmJPEGQF form(world_.program);
        form.txtQF.UserEdit(one.pasted);
        EXPECT_EQ(form.txtQF.Text(), one.text) << one.pasted;
        EXPECT_EQ(form.vsQF.Value(), one.value) << one.pasted;
    }
}

TEST_F(JpegQualityTest, TheScrollBarWritesTheBoxAndGivesItTheFocus) {
    form_.vsQF.UserSet(100);
    ExpectBoth("100", 100, "to the top");
    EXPECT_EQ(form_.Focused(), &form_.txtQF);
    form_.vsQF.UserSet(0);
    ExpectBoth("1", 1, "to the bottom");
}

TEST_F(JpegQualityTest, OnlyOkEndsTheDialog) {
    world_.toolkit.WillPlay("frmJPEGQF", [&](Form& form) {
        EXPECT_FALSE(form.UserClose());
        EXPECT_TRUE(form.IsVisible());
        EXPECT_EQ(form_.ValueText(), "");
        form_.txtQF.UserEdit("90");
        form_.btnOK.UserClick();
        EXPECT_FALSE(form.IsVisible());
    });
    form_.ShowModal();
    EXPECT_TRUE(form_.IsLoaded());
    EXPECT_EQ(form_.ValueText(), "90");
    form_.Unload();
    EXPECT_FALSE(form_.IsLoaded());
    EXPECT_TRUE(world_.toolkit.Unscripted().empty());
}

}  // namespace morpho::test
