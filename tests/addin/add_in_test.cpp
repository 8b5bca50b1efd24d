#include "addin/add_in_im.h"
#include "addin/add_in_tm.h"
#include "addin/add_in_world.h"
#include "forms/controls.h"
#include "theme_editor/frm_prompt_duplicate.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Stands for the image editor.
struct Editor : Form {
    explicit Editor(Toolkit& toolkit) : Form(toolkit, {"Editor"}) {}
};

struct AddInTest : AddInWorld, testing::Test {
    using AddInWorld::AddInWorld;
    AddInTM theme{world.program};
    AddInIM image{world.program, [this] { return std::make_unique<Editor>(world.toolkit); }};

    void TestBody() override {}
    void Connect() {
        theme.OnConnection(application);
        image.OnConnection(application);
    }
};

TEST_F(AddInTest, LogWhatTheyDo) {
    Connect();
    EXPECT_THAT(world.LogLines(),
                ElementsAre("==========================", "Connecting TM: 1.04.17 ",
                            "OS info: Win2K ver. 5.1 Build: 2600 Service Pack 2",
                            "FP ver: 6.0 Lang(exe,UI,UIPrev,Inst): 1033,1033,0,1033",
                            "Creating item ThemeMorpho...", "  Ref control not specified.",
                            "  Ref item not found", "  item created", "TM connection complete",
                            "==========================", "Connecting IM: 1.04.17 ",
                            "OS info: Win2K ver. 5.1 Build: 2600 Service Pack 2",
                            "FP ver: 6.0 Lang(exe,UI,UIPrev,Inst): 1033,1033,0,1033",
                            "Creating item ImageMorphoToolbar...",
                            "  Ref popup not specified. Adding to command bar...",
                            "  Ref control not specified.", "  Ref item not found",
                            "  item created", "  Changing item style for image...",
                            "  Setting item image...", "  Item image set",
                            "Creating item ImageMorpho...", "  Ref control not specified.",
                            "  Ref item not found", "  item created", "IM connection complete"));
    EXPECT_EQ(world.component.logPrefix, "IM");
}

TEST(AddIns, FillTheBarsOfEveryRelease) {
    for (const std::string version : {"4.0", "5.0", "6.0.1", "7.0", "3.0", "6"}) {
        SCOPED_TRACE(version);
        AddInTest test(version);
        const std::vector<ClipboardData> copied{{"text/plain", "copied"}, {"image/bmp", "BM"}};
        test.world.clipboard.SetContents(copied);
        std::string notices;
        test.world.toolkit.WillPlay("frmPromptDuplicate", [&](Form& form) {
            auto& notice = dynamic_cast<frmPromptDuplicate&>(form);
            EXPECT_TRUE(notice.imgStop.Visible());
            notices += notice.Caption() + ": " + notice.lblMessage.Caption() + "\n";
            notice.btnOK.UserClick();
        });
        test.Connect();
        const bool known = version.size() > 1 && version[0] >= '4' && version[0] <= '6';
        EXPECT_EQ(test.Menu(), known ? "[&Theme Morpho...][&Image Morpho...]" : "");
        EXPECT_EQ(notices, known ? ""
                                 : "Theme Morpho: Failed to create Theme morpho menu item under "
                                   "Format menu. Theme morpho will not be accessible.\n"
                                   "Image Morpho: Failed to create Image Morpho menu item under "
                                   "Format menu. But it will be available on the Pictures "
                                   "toolbar.\n");
        EXPECT_EQ(test.Toolbar(), "[Image Morpho]");
        const HostControlLook& look = test.bars.Pictures()->controls->All()[0]->Look();
        EXPECT_EQ(look.face, "BM face");
        EXPECT_EQ(look.style, kIconAndCaptionStyle);
        EXPECT_EQ(test.world.clipboard.Contents(), copied);
    }
}

TEST_F(AddInTest, ReuseTheirItemsAndTakeThemAwayAtTheEnd) {
    PutSetting("Image Morpho", "Splash", "0");
    Connect();
    bars.Menu(HostMenu::kFormat).All()[1]->Set(&HostControlLook::caption, "Mine");
    Connect();
    EXPECT_EQ(Menu(), "[&Theme Morpho...][Mine]");
    std::weak_ptr<Application> host = application;
    application.reset();
    theme.OnDisconnection();
    EXPECT_FALSE(host.expired());
    image.OnDisconnection();
    EXPECT_TRUE(host.expired());
    EXPECT_EQ(Menu() + Toolbar(), "");
    EXPECT_EQ(world.registry.UserText(Path("Image Morpho"), "Splash"), std::nullopt);
}

TEST_F(AddInTest, StayOutWhenTheirLogModeIsNoNumber) {
    world.TurnLogOn();
    PutSetting("Theme Morpho", "Logging", "yes");
    PutSetting("Image Morpho", "Logging", "");
    Connect();
    EXPECT_THAT(world.LogLines(), ElementsAre("Error connecting TM: Type mismatch",
                                              "IM connection error: Type mismatch"));
    EXPECT_EQ(Menu() + Toolbar(), "");
}

TEST_F(AddInTest, NoLongerTellOfMissingItemsWhenThePersonHasHeardEnough) {
    bars.MenuBar()->controls->All()[2]->Remove();
    int notices = 0;
    world.toolkit.WillPlay("frmPromptDuplicate", [&](Form& form) {
        auto& notice = dynamic_cast<frmPromptDuplicate&>(form);
        notice.chkDontShowAgain.UserSet(true);
        ++notices;
        notice.btnOK.UserClick();
    });
    theme.OnConnection(application);
    theme.OnConnection(application);
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(world.registry.UserText(Path("Theme Morpho"), "NoTMAddinError"), "0");
}

TEST_F(AddInTest, OpenTheEditorFromEitherItemAndTellWhenItCannotOpen) {
    Connect();
    int opened = 0;
    world.toolkit.WillPlay("Editor", [&](Form& form) {
        ++opened;
        Click("ImageMorpho");     // it is open
        image.OnDisconnection();  // the host closes meanwhile
        EXPECT_NE(world.component.application, nullptr);
        form.UserClose();
    });
    Click("ImageMorphoToolbar");
    Click("ImageMorpho");
    EXPECT_EQ(opened, 1);

    AddInIM broken(world.program, []() -> std::unique_ptr<Form> {
        throw RunTimeError(ErrorNumber::kCannotCreateComponent, "No editor");
    });
    broken.OnConnection(application);
    Click("ImageMorpho");
    ASSERT_EQ(world.toolkit.Messages().size(), 1U);
    EXPECT_EQ(world.toolkit.Messages()[0].title, "Error!");
    EXPECT_EQ(world.toolkit.Messages()[0].text,
              "An error occurred in the COM add-in named 'Morpho'.\r\nError #:429\r\nNo editor");
}

TEST_F(AddInTest, OpenTheThemeEditorInsideTheHost) {
    Connect();
    std::string shown;
    world.toolkit.WillPlay("frmThemeMorpho", [&](Form& form) {
        shown += form.Caption();
        form.UserClose();
    });
    Click("ThemeMorpho");
    Click("ThemeMorpho");
    EXPECT_EQ(shown, "Theme MorphoTheme Morpho");
}

}  // namespace
}  // namespace morpho::test
