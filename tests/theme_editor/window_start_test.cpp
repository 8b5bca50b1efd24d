#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

class WindowStartTest : public ThemeWindow {
  protected:
    // That start-up fails: only Close, Help and About remain.
    void ExpectUnusable() {
        Open();
        EXPECT_THAT(Operable(), ElementsAre("cmdCancel", "btnAbout", "btnHelp"));
        EXPECT_TRUE(Log().empty() || Log().back() == "Error occured while loading TM");
    }
    Lines LogEnd(std::ptrdiff_t count) const {
        const Lines log = Log();
        return {log.end() - count, log.end()};
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
                    "Temp path: C:\\Temp\\", "FP Temp path: " + kHostThemes,
                    "Listing theme \"blends\"...", "Listing theme \"citrus\"...",
                    "Web theme: blends", "Changing theme combo selection to blends..."));
    EXPECT_THAT(LogEnd(6),
                ElementsAre("All theme elements selected.", "Loading color band image...",
                            "Showing color band image...", "Loading colorizer for the band...",
                            "Setting colorizer properties...", "TM loaded"));
    EXPECT_EQ(world.component.explorerProgId, "FrontPage.Explorer.6.0");
    EXPECT_EQ(window->cmbThemeLabel.Text(), "Blends");
    EXPECT_EQ(window->imgBand.Picture(), "colour band");
    EXPECT_EQ(window->picBand.Picture(), "colour band|h0 s1 b1");
    EXPECT_THAT(world.colorizers.calls, ElementsAre("Create", "SourceFile C:\\Temp\\ColorBand.jpg",
                                                    "DestinationFile C:\\Temp\\pColorBand.jpg",
                                                    "AuxParameter1 0", "AuxParameter2 0", "Hue 0",
                                                    "Saturation 1", "Brightness 1", "Colorize"));
    EXPECT_FALSE(window->cmdUndo.Enabled() || window->cmdRedo.Enabled());
}

TEST_F(WindowStartTest, FindsWhereTheHostKeepsUnpackedThemes) {
    world.files.PutFolder("D:\\Plain\\FrontPageTempDir");
    world.application.web.reset();
    const auto expectThemes = [&](const char* cache, const char* version, std::string themes) {
        PutShellFolder("Cache", cache);
        world.application.version = version;
        Open();
        EXPECT_THAT(Log(), Contains("FP Temp path: " + themes));
    };
    expectThemes("C:\\Cache\\", "6.0", kHostThemes);
    expectThemes("D:\\Plain", "6.0", "D:\\Plain\\");
    expectThemes("C:\\Cache", "5.0", "C:\\Temp\\");
}

TEST_F(WindowStartTest, ListsOnlyThemesThatTheHostHasUnpackedAndSaysWhenThereAreNone) {
    auto& themes = world.application.web->themes;
    themes.insert(themes.begin(), {"packed", "Packed"});
    Open();
    EXPECT_EQ(window->cmbThemeLabel.ListCount(), 2);
    EXPECT_EQ(window->cmbThemeName.List(0), "blends");

    constexpr const char* kNoThemes =
        "You must open one or more pages in FrontPage that use theme(s) you wish to edit. If you "
        "have already opened pages, you may have to save them to get the themes to appear in the "
        "list.";
    themes.resize(1);
    ExpectUnusable();
    ExpectMessage(1, kNoThemes, 16);
    EXPECT_THAT(LogEnd(3), ElementsAre("Web theme: blends", "No themes were opened by FP",
                                       "Error occured while loading TM"));
    world.application.web.reset();
    Forget();
    ExpectUnusable();
    ExpectMessage(2, kNoThemes, 16);
    EXPECT_THAT(Log(), Not(Contains("Web theme: blends")));
}

TEST_F(WindowStartTest, SaysWhenTheColorizerIsMissingAndEndsWithoutAMessageAtAnyOtherError) {
    std::map<LanguageUse, int> languages;
    world.files.FailOn("C:\\Temp\\ColorBand.jpg");
    ExpectUnusable();
    world.files.FailNoMore();
    world.application.languages.swap(languages);  // throws what is no error of ours
    ExpectUnusable();
    world.application.languages.swap(languages);
    world.colorizers.creatable = false;
    ExpectUnusable();
    ExpectMessage(1,
                  "A required component of Morpho, Colorizer, cannot be initialised.\r\nMorpho "
                  "product will not work.",
                  16);
    PutSetting("Logging", "1");
    PutShellFolder("AppData", "C:\\Temp");
    world.files.FailOn("C:\\Temp\\Norvale Software");  // not even the log can be written
    ExpectUnusable();
    EXPECT_EQ(world.toolkit.Messages().size(), 1U);
}

TEST_F(WindowStartTest, TheAboutBoxIsASplashOnceAndStoresTheLogSwitchAndHelpOpensTheManual) {
    int shown = 0;
    world.toolkit.WillPlay("frmAbout", [&shown](Form& form) {
        auto& about = dynamic_cast<frmAbout&>(form);
        about.chkLogging.UserSet(++shown == 1);
        about.btnOK.UserClick();
    });
    PutSetting("Splash", "1");
    Open();
    EXPECT_EQ(Setting("Splash") + Setting("Logging"), "02");
    Open();
    EXPECT_EQ(shown, 1);
    window->btnAbout.UserClick();
    EXPECT_EQ(Setting("Logging"), "0");
    window->btnHelp.UserClick();
    EXPECT_THAT(world.shell.started,
                ElementsAre("Winhlp32.exe C:\\Program Files\\Morpho\\morpho.hlp"));
    world.shell.result = 32;
    window->btnHelp.UserClick();
    EXPECT_THAT(world.toolkit.Messages(), IsEmpty());
    world.shell.result = 31;
    window->btnHelp.UserClick();
    ExpectMessage(1, "The help cannot be opened.", kCriticalIcon);
}

TEST_F(WindowStartTest, TheFirstPaintShowsTheQuickReferenceUntilThePersonHasHadEnough) {
    PutSetting("QuickReference", "1");
    int shown = 0;
    world.toolkit.WillPlay("frmQuickReference", [&shown](Form& form) {
        auto& guide = dynamic_cast<frmQuickReference&>(form);
        guide.chkDontShow.UserSet(++shown == 2);
        guide.btnOK.UserClick();
    });
    for (int start = 0; start < 3; ++start) {
        Open().Painted();
        window->Painted();
    }
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(Setting("QuickReference"), "0");
}

}  // namespace
}  // namespace morpho::test
