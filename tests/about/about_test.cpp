#include <gtest/gtest.h>

#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "support/fake_platform.h"
#include "support/form_layout.h"

namespace morpho::test {

namespace {

class AboutTest : public ::testing::Test {
  protected:
    // Shows the box, does `person` to it, and gives the log mode after it.
    int Show(Editor editor, int logMode, const std::function<void(frmAbout&)>& person) {
        frmAbout box(world_.program);
        world_.toolkit.WillPlay("frmAbout", [&](Form& form) {
            person(static_cast<frmAbout&>(form));
            if (form.IsVisible()) form.UserClose();
        });
        box.ShowAbout(editor, logMode);
        EXPECT_TRUE(world_.toolkit.Unscripted().empty());
        EXPECT_FALSE(box.IsLoaded());
        return logMode;
    }

    FakePlatform world_;
};

}  // namespace

TEST_F(AboutTest, NamesTheEditorAndTheVersion) {
    Show(Editor::kImage, 0, [](frmAbout& box) {
        EXPECT_EQ(box.lblName.Caption(), "Image Morpho\xE2\x84\xA2");
        EXPECT_EQ(box.lblVersion.Caption(), "Version 1.04");
        EXPECT_EQ(box.Caption(), "About Image Morpho");
        ExpectWellLaidOut(box);
    });
    Show(Editor::kTheme, 0,
         [](frmAbout& box) { EXPECT_EQ(box.lblName.Caption(), "Theme Morpho\xE2\x84\xA2"); });
}

TEST_F(AboutTest, SwitchesTheLogWithOkOnly) {
    const auto expectMode = [&](int before, bool ticked, bool tick, bool ok, int after) {
        const int mode = Show(Editor::kTheme, before, [&](frmAbout& box) {
            EXPECT_EQ(box.chkLogging.Value(), ticked) << "mode " << before;
            box.chkLogging.UserSet(tick);
            if (ok) box.btnOK.UserClick();
        });
        EXPECT_EQ(mode, after) << "mode " << before;
    };
    expectMode(0, false, true, true, 1);
    expectMode(0, false, false, true, 0);
    expectMode(1, true, false, true, 0);
    expectMode(1, true, true, true, 1);
    expectMode(2, true, true, true, 2);  // the debugger output stays chosen
    expectMode(2, true, false, true, 0);
    expectMode(7, false, true, true, 1);
    expectMode(1, true, false, false, 1);
}

TEST_F(AboutTest, ShowsTheGuideWithoutItsCheckBox) {
    bool shown = false;
    world_.toolkit.WillPlay("frmQuickReference", [&](Form& form) {
        auto& guide = static_cast<frmQuickReference&>(form);
        shown = true;
        EXPECT_FALSE(guide.chkDontShow.UserSet(true));
        EXPECT_TRUE(guide.btnOK.UserClick());
    });
    Show(Editor::kTheme, 0, [](frmAbout& box) { box.btnQuickReference.UserClick(); });
    EXPECT_TRUE(shown);
}

TEST_F(AboutTest, LinksToTheConfiguredWebSiteAlone) {
    const auto click = [](frmAbout& box) { box.lblWebSiteLink.UserClick(); };
    Show(Editor::kTheme, 0, click);
    EXPECT_TRUE(world_.shell.executions.empty());

    world_.component.webSite = "C:\\Morpho\\help.htm";
    Show(Editor::kTheme, 0, click);
    EXPECT_EQ(world_.shell.executions,
              (std::vector<FakeShell::Execution>{{"open", "C:\\Morpho\\help.htm", "", 1}}));
    world_.TurnLogOn();
    world_.shell.result = 2;
    Show(Editor::kTheme, 2, click);
    EXPECT_EQ(world_.LogLines(), std::vector<std::string>{"Cannot open C:\\Morpho\\help.htm"});
}

TEST(QuickReferenceTest, ShowsTheGuideWithWindowsLineEndsAndCanBeSilenced) {
    FakePlatform world;
    world.resources.strings[101] = "Step 1\n\nStep 2";
    frmQuickReference guide(world.program);
    world.toolkit.WillPlay("frmQuickReference", [&](Form&) {
        EXPECT_EQ(guide.txtQuickReference.Text(), "Step 1\r\n\r\nStep 2");
        EXPECT_FALSE(guide.txtQuickReference.UserEdit("x"));
        EXPECT_TRUE(guide.chkDontShow.UserSet(true));
        EXPECT_TRUE(guide.btnOK.UserClick());
    });
    guide.ShowModal();
    EXPECT_TRUE(guide.chkDontShow.Value());
    EXPECT_FALSE(guide.IsLoaded());
    ExpectWellLaidOut(guide);
}

}  // namespace morpho::test
