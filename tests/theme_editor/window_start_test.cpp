#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

class WindowStartTest : public ThemeWindow {
  protected:
    void PutShellFolder(const std::string& name, const std::string& path) {
        world_.registry.PutString(
            kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
            name, path);
    }

    // That start-up failed: only Close, Help and About remain.
    void ExpectUnusable() {
        Control* const unusable[] = {
            &window_->cmbThemeLabel,   &window_->lstImageNames,   &window_->cmdSelectAll,
            &window_->cmdSelectNone,   &window_->cmdSelectActive, &window_->cmdSelectNormal,
            &window_->wbbImagePreview, &window_->sldBrightness,   &window_->sldSaturation,
            &window_->sldHue,          &window_->cmdApply,        &window_->cmdUndo,
            &window_->cmdRedo,         &window_->cmdReset,        &window_->cmdSave,
            &window_->cmdSaveAs};
        for (const Control* control : unusable)
            EXPECT_FALSE(control->IsOperable()) << control->Name();
        for (const Control* control : {&window_->cmdCancel, &window_->btnAbout, &window_->btnHelp})
            EXPECT_TRUE(control->IsOperable()) << control->Name();
    }
};

TEST_F(WindowStartTest, LogsItsSteps) {
    Open();
    const Lines log = Log();
    EXPECT_THAT(
        Lines(log.begin(), log.begin() + 11),
        ElementsAre("==============================", "TM started", "Morpho version - 1.04.17 ",
                    "OS info - Win2K ver. 5.1 Build: 2600 Service Pack 2",
                    "FP ver: 6.0 Lang(exe,UI,UIPrev,Inst): 1033,1033,0,1033",
                    "Temp path: C:\\Temp\\", "FP Temp path: C:\\Cache\\FrontPageTempDir\\mstheme\\",
                    "Listing theme \"blends\"...", "Listing theme \"citrus\"...",
                    "Web theme: blends", "Changing theme combo selection to blends..."));
    EXPECT_THAT(Lines(log.end() - 6, log.end()),
                ElementsAre("All theme elements selected.", "Loading color band image...",
                            "Showing color band image...", "Loading colorizer for the band...",
                            "Setting colorizer properties...", "TM loaded"));
    EXPECT_EQ(world_.component.logPrefix, "TM");
    EXPECT_EQ(world_.component.explorerProgId, "FrontPage.Explorer.6.0");
    EXPECT_EQ(world_.component.editorProgId, "FrontPage.Editor.6.0");
}

TEST_F(WindowStartTest, ShowsTheFirstThemeAndTheBandWithNeutralSliders) {
    Open();
    EXPECT_EQ(window_->cmbThemeLabel.Text(), "Blends");
    EXPECT_EQ(window_->imgBand.Picture(), "colour band");
    EXPECT_EQ(window_->picBand.Picture(), "colour band|h0 s1 b1");
    EXPECT_THAT(world_.colorizers.calls, ElementsAre("Create", "SourceFile C:\\Temp\\ColorBand.jpg",
                                                     "DestinationFile C:\\Temp\\pColorBand.jpg",
                                                     "AuxParameter1 0", "AuxParameter2 0", "Hue 0",
                                                     "Saturation 1", "Brightness 1", "Colorize"));
    EXPECT_FALSE(window_->cmdUndo.Enabled() || window_->cmdRedo.Enabled());
}

TEST_F(WindowStartTest, FindsWhereTheHostKeepsUnpackedThemes) {
    const struct {
        const char* cache;
        const char* version;
        const char* themes;
    } cases[] = {{"C:\\Cache\\", "6.0", "C:\\Cache\\FrontPageTempDir\\mstheme\\"},
                 {"D:\\Plain", "6.0", "D:\\Plain\\"},
                 {"C:\\Cache", "5.0", "C:\\Temp\\"}};
    world_.files.PutFolder("D:\\Plain\\FrontPageTempDir");
    for (const auto& [cache, version, themes] : cases) {
        PutShellFolder("Cache", cache);
        world_.application.version = version;
        world_.application.web.reset();
        Open();
        EXPECT_THAT(Log(), Contains("FP Temp path: " + std::string(themes)));
    }
}

TEST_F(WindowStartTest, ListsOnlyThemesThatTheHostHasUnpackedAndSaysWhenThereAreNone) {
    auto& themes = world_.application.web->themes;
    themes.insert(themes.begin(), {"packed", "Packed"});
    Open();
    EXPECT_EQ(window_->cmbThemeLabel.ListCount(), 2);
    EXPECT_EQ(window_->cmbThemeName.List(0), "blends");

    constexpr const char* kNoThemes =
        "You must open one or more pages in FrontPage that use theme(s) you wish to edit. If you "
        "have already opened pages, you may have to save them to get the themes to appear in the "
        "list.";
    themes.resize(1);
    Forget();
    Open();
    ExpectMessage(1, kNoThemes, 16);
    ExpectUnusable();
    const Lines log = Log();
    EXPECT_THAT(Lines(log.end() - 3, log.end()),
                ElementsAre("Web theme: blends", "No themes were opened by FP",
                            "Error occured while loading TM"));

    world_.application.web.reset();
    Forget();
    Open();
    ExpectMessage(2, kNoThemes, 16);
    EXPECT_THAT(Log(), Not(Contains("Web theme: blends")));
}

TEST_F(WindowStartTest, SaysWhenTheColorizerIsMissing) {
    world_.colorizers.creatable = false;
    Open();
    ExpectMessage(1,
                  "A required component of Morpho, Colorizer, cannot be initialised.\r\nMorpho "
                  "product will not work.",
                  16);
    ExpectUnusable();
}

TEST_F(WindowStartTest, AnyOtherErrorEndsItWithoutAMessage) {
    world_.files.FailOn("C:\\Temp\\ColorBand.jpg");
    Open();
    ExpectUnusable();
    EXPECT_EQ(Log().back(), "Error occured while loading TM");

    PutSetting("Logging", "1");
    PutShellFolder("AppData", "C:\\Temp");
    world_.files.FailOn("C:\\Temp\\Norvale Software");  // not even the log can be written
    Open();
    ExpectUnusable();
    EXPECT_THAT(world_.toolkit.Messages(), IsEmpty());
}

TEST_F(WindowStartTest, TheAboutBoxIsASplashOnceAndStoresTheLogSwitchAndHelpOpensTheManual) {
    int shown = 0;
    world_.toolkit.WillPlay("frmAbout", [&shown](Form& form) {
        auto& about = dynamic_cast<frmAbout&>(form);
        about.chkLogging.UserSet(++shown == 1);
        about.btnOK.UserClick();
    });
    PutSetting("Splash", "1");
    Open();
    EXPECT_EQ(Setting("Splash") + Setting("Logging"), "02");
    Open();
    EXPECT_EQ(shown, 1);
    window_->btnAbout.UserClick();
    EXPECT_EQ(Setting("Logging"), "0");
    window_->btnHelp.UserClick();
    EXPECT_THAT(world_.shell.commandLines,
                ElementsAre("Winhlp32.exe C:\\Program Files\\Morpho\\morpho.hlp"));
}

TEST_F(WindowStartTest, TheFirstPaintShowsTheQuickReferenceUntilThePersonHasHadEnough) {
    PutSetting("QuickReference", "1");
    int shown = 0;
    world_.toolkit.WillPlay("frmQuickReference", [&shown](Form& form) {
        auto& guide = dynamic_cast<frmQuickReference&>(form);
        guide.chkDontShow.UserSet(++shown == 2);
        guide.btnOK.UserClick();
    });
    for (int start = 0; start < 3; ++start) {
        Open().Painted();
        window_->Painted();
    }
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(Setting("QuickReference"), "0");
}

}  // namespace
}  // namespace morpho::test
