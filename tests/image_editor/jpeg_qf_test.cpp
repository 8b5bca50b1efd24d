#include <gtest/gtest.h>

#include "image_editor/frm_jpeg_qf.h"
#include "support/fake_platform.h"

namespace morpho::test {
namespace {

class JpegQualityTest : public ::testing::Test {
  protected:
    // That box and scroll bar show this number.
    void ExpectBoth(int value, const std::string& after) {
        EXPECT_EQ(form_.txtQF.Text(), std::to_string(value)) << after;
        EXPECT_EQ(form_.vsQF.Value(), value) << after;
    }

    FakePlatform world_;
    frmJPEGQF form_{world_.program};
};

TEST_F(JpegQualityTest, KeepsBoxAndScrollBarTogetherWhateverIsTyped) {
    ExpectBoth(75, "at the start");
    const std::pair<const char*, int> cases[] = {
        // after the box was made to hold 42
        {"\b0", 40},     {"5", 42},        {"a-+.,e \t", 42}, {"\b\b", 1},   {"\b\b\b\b", 1},
        {"\b\b00", 100}, {"\b\b000", 100}, {"\b\b005", 100},  {"\b\b7", 17}, {"\b\b00\b", 10}};
    for (const auto& [keys, value] : cases) {
        form_.txtQF.UserEdit("42");
        form_.txtQF.UserType(keys);
        ExpectBoth(value, keys);
    }
}

TEST_F(JpegQualityTest, TakesAPastedNumberOrKeepsTheText) {
    const std::pair<const char*, int> cases[] = {{"0", 1},    {"", 1},    {"abc", 42},
                                                 {"500", 42}, {"-5", 42}, {"100", 100},
                                                 {"1e9", 42}, {"8", 8},   {"50.5", 42}};
    for (const auto& [pasted, value] : cases) {
        form_.txtQF.UserEdit("42");
        form_.txtQF.UserEdit(pasted);
        ExpectBoth(value, pasted);
    }
}

TEST_F(JpegQualityTest, TheScrollBarWritesTheBoxAndGivesItTheFocus) {
    form_.vsQF.UserSet(100);
    ExpectBoth(100, "to the top");
    EXPECT_EQ(form_.Focused(), &form_.txtQF);
    form_.vsQF.UserSet(0);
    ExpectBoth(1, "to the bottom");
    form_.txtQF.UserStep(1);
    ExpectBoth(2, "the key Up in the box");
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
}

}  // namespace
}  // namespace morpho::test
