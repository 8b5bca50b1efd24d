#include <gmock/gmock.h>

#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "support/fake_platform.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
        EXPECT_FALSE(box.IsLoaded());
        return logMode;
    }
    // The guide, looked at by `person`, who then closes it.
    void PlayGuide(const std::function<void(frmQuickReference&)>& person) {
        world_.toolkit.WillPlay("frmQuickReference", [=, this](Form& form) {
            ++guides_;
            auto& guide = static_cast<frmQuickReference&>(form);
            person(guide);
            EXPECT_TRUE(guide.btnOK.UserClick());
        });
    }
    void TearDown() override { EXPECT_THAT(world_.toolkit.Unscripted(), IsEmpty()); }

    FakePlatform world_;
    int guides_ = 0;
};

TEST_F(AboutTest, NamesTheEditorAndTheVersion) {
    Show(Editor::kImage, 0, [](frmAbout& box) {
        EXPECT_EQ(box.lblName.Caption(), "Image Morpho\xE2\x84\xA2");
        EXPECT_EQ(box.lblVersion.Caption(), "Version 1.04");
        EXPECT_EQ(box.Caption(), "About Image Morpho");
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
    expectMode(2, true, true, true, 2);  // the debugger output stays chosen
    expectMode(7, false, true, true, 1);
    expectMode(1, true, false, false, 1);
}

TEST_F(AboutTest, LinksToTheConfiguredWebSiteAlone) {
    const auto click = [](frmAbout& box) { box.lblWebSiteLink.UserClick(); };
    Show(Editor::kTheme, 0, click);
    EXPECT_THAT(world_.shell.started, IsEmpty());
    world_.component.webSite = "C:\\Morpho\\help.htm";
    world_.TurnLogOn();
    Show(Editor::kTheme, 2, click);
    EXPECT_THAT(world_.shell.started, ElementsAre("open C:\\Morpho\\help.htm , show 1"));
    EXPECT_THAT(world_.LogLines(), IsEmpty());
    world_.shell.result = 32;
    Show(Editor::kTheme, 2, click);
    EXPECT_THAT(world_.LogLines(), ElementsAre("Cannot open C:\\Morpho\\help.htm"));
}

TEST_F(AboutTest, TheGuideHasWindowsLineEndsAndIsSilencedByItsBoxUnlessAboutShowsIt) {
    PlayGuide([](frmQuickReference& guide) { EXPECT_FALSE(guide.chkDontShow.UserSet(true)); });
    Show(Editor::kTheme, 0, [](frmAbout& box) { box.btnQuickReference.UserClick(); });
    PlayGuide([](frmQuickReference& guide) {
        EXPECT_EQ(guide.txtQuickReference.Text(), "Step 1\r\n\r\nStep 2");
        EXPECT_FALSE(guide.txtQuickReference.UserEdit("x"));
        EXPECT_TRUE(guide.chkDontShow.UserSet(true));
    });
    frmQuickReference guide(world_.program);
    guide.ShowModal();
    EXPECT_TRUE(guide.chkDontShow.Value());
    EXPECT_EQ(guides_, 2);
}

}  // namespace
}  // namespace morpho::test
