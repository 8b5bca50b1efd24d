#include "addin/add_in_im.h"
#include "addin/add_in_tm.h"
#include "addin/add_in_world.h"
#include "theme_editor/frm_prompt_duplicate.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;

// Both add-ins in a host; the image editor is an empty form, and the person closes what opens.
struct AddInTest : AddInWorld, testing::Test {
    explicit AddInTest(const std::string& version = "6.0") : AddInWorld(version) {
        for (const std::string product : {"Theme Morpho", "Image Morpho"})
            PutSetting(product, "Logging", "2");
        for (const char* form : {"Editor", "frmThemeMorpho"}) {
            world.toolkit.WillPlay(form, [this](Form& opened) {
                ++editors;
                if (whileOpen) whileOpen();
                opened.UserClose();
            });
        }
        world.toolkit.WillPlay("frmPromptDuplicate", [this](Form& form) {
            auto& notice = dynamic_cast<frmPromptDuplicate&>(form);
            EXPECT_TRUE(notice.imgStop.Visible());
            notices += notice.Caption() + ": " + notice.lblMessage.Caption() + "\n";
            notice.chkDontShowAgain.UserSet(true);
            notice.btnOK.UserClick();
        });
    }
    void TestBody() override {}

    static std::string Path(const std::string& product) {
        return "Software\\VB and VBA Program Settings\\" + product + "\\Window";
    }
    void PutSetting(const std::string& product, const std::string& key, const std::string& value) {
        world.registry.Put(kCurrentUser, Path(product), key, value);
    }
    void Connect() {
        theme.OnConnection(application);
        image.OnConnection(application);
    }

    int editors = 0;
    std::string notices;
    std::function<void()> whileOpen;
    std::function<std::unique_ptr<Form>()> makeEditor = [this] {
        return std::make_unique<Form>(world.toolkit, FormSpec{"Editor"});
    };
    AddInTM theme{world.program};
    AddInIM image{world.program, [this] { return makeEditor(); }};
};

TEST_F(AddInTest, LogWhatTheyDo) {
    Connect();
    const std::string start = "==========================", version = "1.04.17 ",
                      os = "OS info: Win2K ver. 5.1 Build: 2600 Service Pack 2",
                      host = "FP ver: 6.0 Lang(exe,UI,UIPrev,Inst): 1033,1033,0,1033",
                      noPopup = "  Ref popup not specified. Adding to command bar...",
                      noRef = "  Ref control not specified.", noItem = "  Ref item not found",
                      created = "  item created";
    EXPECT_THAT(
        world.LogLines(),
        ElementsAre(start, "Connecting TM: " + version, os, host, "Creating item ThemeMorpho...",
                    noRef, noItem, created, "TM connection complete", start,
                    "Connecting IM: " + version, os, host, "Creating item ImageMorphoToolbar...",
                    noPopup, noRef, noItem, created, "  Changing item style for image...",
                    "  Setting item image...", "  Item image set", "Creating item ImageMorpho...",
                    noRef, noItem, created, "IM connection complete"));
}

TEST(AddIns, FillTheBarsOfEveryRelease) {
    for (const std::string version : {"4.0", "5.0", "6.0.1", "7.0", "3.0", "6"}) {
        SCOPED_TRACE(version);
        AddInTest test(version);
        const std::vector<ClipboardData> copied{{"text/plain", "copied"}, {"image/bmp", "BM"}};
        test.world.clipboard.SetContents(copied);
        test.Connect();
        test.Connect();  // finds its items, and no longer tells which are missing
        const bool known = version.size() > 1 && version[0] >= '4' && version[0] <= '6';
        EXPECT_EQ(test.Shown(),
                  known ? "[&Theme Morpho...][&Image Morpho...][Image Morpho]" : "[Image Morpho]");
        EXPECT_EQ(test.notices, known ? ""
                                      : "Theme Morpho: Failed to create Theme morpho menu item "
                                        "under Format menu. Theme morpho will not be accessible.\n"
                                        "Image Morpho: Failed to create Image Morpho menu item "
                                        "under Format menu. But it will be available on the "
                                        "Pictures toolbar.\n");
        const HostControlLook& look = test.bars.Pictures()->controls->All()[0]->Look();
        EXPECT_EQ(look.face, "BM face");
        EXPECT_EQ(look.style, kIconAndCaptionStyle);
        EXPECT_EQ(test.world.clipboard.Contents(), copied);
    }
}

TEST_F(AddInTest, TakeTheirItemsAwayAtTheEnd) {
    PutSetting("Image Morpho", "Splash", "0");
    Connect();
    std::weak_ptr<Application> host = application;
    application.reset();
    theme.OnDisconnection();
    EXPECT_FALSE(host.expired());
    image.OnDisconnection();
    EXPECT_TRUE(host.expired());
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(world.registry.UserText(Path("Image Morpho"), "Splash"), std::nullopt);
}

TEST_F(AddInTest, StayOutWhenTheirLogModeIsNoNumber) {
    PutSetting("Theme Morpho", "Logging", "yes");
    PutSetting("Image Morpho", "Logging", "");
    Connect();
    EXPECT_THAT(world.LogLines(), ElementsAre("Error connecting TM: Type mismatch",
                                              "IM connection error: Type mismatch"));
    EXPECT_EQ(Shown(), "");
}

TEST_F(AddInTest, OpenTheirEditorsAndTellWhenOneCannotOpen) {
    Connect();
    const auto theirs = format.All();
    bars.Pictures()->controls->All()[0]->Click();
    theirs[0]->Click();
    EXPECT_EQ(editors, 2);
    makeEditor = []() -> std::unique_ptr<Form> {
        throw RunTimeError(ErrorNumber::kCannotCreateComponent, "No editor");
    };
    theirs[1]->Click();
    EXPECT_EQ(world.toolkit.Messages().back().title, "Error!");
    EXPECT_EQ(world.toolkit.Messages().back().text,
              "An error occurred in the COM add-in named 'Morpho'.\r\nError #:429\r\nNo editor");
}

TEST_F(AddInTest, KeepTheHostForAnEditorThatIsOpen) {
    Connect();
    const auto button = format.All()[1];
    whileOpen = [&] {
        if (editors == 1) button->Click();  // only brings it to the top
        theme.OnDisconnection();
        image.OnDisconnection();
        EXPECT_NE(world.component.application, nullptr);
    };
    button->Click();
    EXPECT_EQ(editors, 1);
    EXPECT_EQ(world.component.application, nullptr);
}

TEST_F(AddInTest, LiveUntilTheirEditorIsClosed) {
    auto own = std::make_shared<AddInIM>(world.program, [this] { return makeEditor(); });
    const std::weak_ptr<AddIn> watched = own;
    own->OnConnection(application);
    whileOpen = [&] {
        own.reset();
        EXPECT_FALSE(watched.expired());
    };
    const auto button = format.All()[0];
    button->Click();
    EXPECT_EQ(editors, 1);
    EXPECT_TRUE(watched.expired());
}

}  // namespace
}  // namespace morpho::test
