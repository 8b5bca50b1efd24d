#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

const std::string kRecoloured = "|h40 s1 b1";
const std::string kWave = "coast/wave.gif" + kRecoloured;

struct SaveTheme : testing::Test, SaveWorld {
    void SaveAs(const std::string& name, const std::string& title, bool apply) {
        PersonSavesAs(name, title, apply);
        window->cmdSaveAs.UserClick();
    }
    void Save(Answer overwrite) {
        world.toolkit.WillAnswer(overwrite);
        window->cmdSave.UserClick();
    }
    // Closing asks about unsaved changes only while there are some.
    bool IsModified() {
        const auto asked = world.toolkit.Messages().size();
        world.toolkit.WillAnswer(Answer::kCancel);
        return !window->UserClose() && world.toolkit.Messages().size() == asked + 1;
    }
    void ExpectLastMessage(const std::string& text, int flags) {
        ExpectMessage(world.toolkit.Messages().size(), text, flags);
        EXPECT_TRUE(IsUsable());
    }
    // That the theme "bay" is installed with a description of its own.
    void ExpectBayInstalled() {
        EXPECT_EQ(
            world.files.Bytes(kUserThemes + "bay\\bay.inf"),
            "[info]\r\ntitle=The Bay\r\nreadonly=0\r\nformat=2\r\n[titles]\r\n1033=The Bay\r\n");
        ExpectHolds(kUserThemes + "bay\\bay.elm", kRecoloured + "<==MS-Theme==>");
    }
    void ExpectHolds(const std::string& file, const std::string& part) {
        EXPECT_THAT(world.files.Bytes(file), HasSubstr(part)) << file;
    }
};

TEST_F(SaveTheme, SaveAsInstallsTheThemeAndShowsItInTheWeb) {
    OpenAndRecolour();
    SaveAs("bay", "The Bay", true);
    EXPECT_THAT(
        Log(), ElementsAre("Saving theme \"The Bay\" (bay)...", "Source theme: coast",
                           "Source theme found in " + kGlobalThemes + "coast",
                           "Using OM to create theme folder on the web...",
                           "Copying theme files to the web...", "Marking the new theme as fresh...",
                           "Updating local theme files...", "SaveAs: Applying theme to web...",
                           "Refreshing web...", "Recalculating hyperlinks...", "Theme saved."));
    EXPECT_THAT(world.automation.calls,
                ElementsAre("vtiMakeThemeFresh bay, file:///C:/Web, True, True"));
    ExpectBayInstalled();
    for (const std::string& folder : {kWebThemes, kHostThemes}) {
        EXPECT_EQ(world.files.Bytes(folder + "bay\\wave.gif"), kWave);
        ExpectHolds(folder + "bay\\bay.inf", "title=The Bay");
        EXPECT_FALSE(world.files.HasFile(folder + "bay\\coast.inf"));
    }
    EXPECT_EQ(world.application.web->themeOfWeb, "bay");
    EXPECT_TRUE(IsUsable());
    EXPECT_FALSE(IsModified());
    // The window lists it, and stays with the theme it has.
    EXPECT_EQ(window->cmbThemeName.List(1) + window->cmbThemeLabel.List(1), "bayThe Bay");
    EXPECT_EQ(window->cmbThemeName.Text() + window->cmbThemeLabel.Text(), "coastCoast");
    EXPECT_TRUE(window->cmdUndo.Enabled());
    window->cmbThemeLabel.UserSelect(1);
    EXPECT_EQ(window->lstImageNames.ListCount(), 3);
}

TEST_F(SaveTheme, SaveAsWithoutApplyingLeavesTheWebAsItWas) {
    world.files.DeleteFolder("C:\\Ann");  // the user's first theme
    OpenAndRecolour();
    SaveAs("bay", "The Bay", false);
    EXPECT_THAT(Log(), Contains("Removing web theme folder..."));
    ExpectBayInstalled();
    for (const std::string& folder : {kWebThemes, kHostThemes})
        EXPECT_FALSE(world.files.HasFolder(folder + "bay"));
    EXPECT_EQ(world.application.web->themeOfWeb, "coast");
    EXPECT_EQ(world.application.webCalls.back(), "RecalcHyperlinks");
}

TEST_F(SaveTheme, TheCopyInUtf8FollowsTheDescription) {
    const std::string utf8 = "[info]\r\ntitle=Coast\r\n[titles]\r\n1033=Coast\r\n";
    for (const char* const file : {"coast\\coast.utf8", "coast\\coast.inf"})
        world.files.PutFile(kHostThemes + file, utf8);
    InstallTheme(kGlobalThemes, "coast", "Coast");
    OpenAndRecolour();
    world.files.FailOn(kUserThemes + "bay\\bay.elm");
    SaveAs("bay", "The Bay", true);
    world.files.FailNoMore();
    SaveAs("port", "Łódź", true);
    ExpectHolds(kUserThemes + "port\\port.elm", "port.utf8,");
    for (const std::string& folder : {kWebThemes, kHostThemes}) {
        EXPECT_THAT(world.files.FilesBelow(folder + "port"),
                    testing::AllOf(Contains("port.utf8"), Not(Contains("coast.utf8")),
                                   Not(Contains("bay.utf8"))));
        EXPECT_EQ(world.files.Bytes(folder + "port\\port.utf8"),
                  world.files.Bytes(folder + "port\\port.inf"));
        ExpectHolds(folder + "port\\port.inf", "1033=Łódź");
    }
}

TEST_F(SaveTheme, SaveKeepsTheBytesOfTheTitle) {
    for (const std::string title : {"K\xC3\xBCste", "K\xFCste"}) {
        InstallTheme(kGlobalThemes, "coast", title);
        world.application.web->themes.front().label = "Küste";
        OpenAndRecolour();
        Save(Answer::kYes);
        EXPECT_EQ(world.files.Bytes(kUserThemes + "coast\\coast.inf"),
                  "[info]\r\ntitle=" + title +
                      "\r\nreadonly=0\r\nformat=2\r\n[titles]\r\n1033=" + title + "\r\n");
    }
}

TEST_F(SaveTheme, AFolderThatTheWebHadBeforeIsNotDeleted) {
    world.files.PutFile(kWebThemes + "bay\\own.gif", "the web's");
    OpenAndRecolour();
    SaveAs("bay", "The Bay", false);
    EXPECT_EQ(world.files.Bytes(kWebThemes + "bay\\own.gif"), "the web's");
    ExpectBayInstalled();
}

TEST_F(SaveTheme, AWebThatHidesItsFoldersGetsThemFromTheExplorer) {
    world.application.web->showsHiddenPages.reset();
    world.automation.whenCalled = [this](std::string_view method) {
        if (method == "vtiCreateFolder") world.files.PutFolder(kWebThemes + "bay");
    };
    OpenAndRecolour();
    SaveAs("bay", "The Bay", true);
    EXPECT_THAT(Log(), Contains("Using OLE to create theme folder on the web..."));
    EXPECT_THAT(world.automation.calls, Contains("vtiCreateFolder _themes/bay"));
    EXPECT_EQ(world.files.Bytes(kWebThemes + "bay\\wave.gif"), kWave);
}

TEST_F(SaveTheme, SaveWritesTheThemeOverItselfAfterAQuestion) {
    InstallTheme(kUserThemes, "coast", "Coast");
    OpenAndRecolour();
    const auto before = Tree();
    Save(Answer::kNo);
    EXPECT_EQ(Tree(), before);
    EXPECT_THAT(world.toolkit.Messages().back().text,
                HasSubstr("theme used on another web\r\n may inadvertently"));
    EXPECT_EQ(world.toolkit.Messages().back().flags, kYesNo | kQuestionIcon);
    EXPECT_TRUE(window->cmdUndo.Enabled());

    Forget();
    Save(Answer::kYes);
    EXPECT_THAT(Log(), testing::IsSupersetOf({"Save: Applying theme to web...",
                                              "index.htmSave: Applying theme to page..."}));
    EXPECT_THAT(world.application.webCalls,
                ElementsAre("ApplyTheme coast", "ApplyTheme coast to index.htm", "Refresh",
                            "RecalcHyperlinks"));
    EXPECT_EQ(world.files.Bytes(kHostThemes + "coast\\wave.gif"), kWave);
    EXPECT_EQ(world.files.Bytes(kGlobalThemes + "coast\\coast.elm"),
              before.at("common\\microsoft shared\\themes11\\coast\\coast.elm"));
    ExpectHolds(kUserThemes + "coast\\coast.elm", kRecoloured);
    // What was saved over the originals is not recoloured twice.
    EXPECT_FALSE(window->cmdUndo.Enabled());
    window->sldHue.UserSettle(5);
    EXPECT_EQ(world.files.Bytes(kWorkRoot + "coast\\wave.gif"), kWave + "|h5 s1 b1");
}

TEST_F(SaveTheme, AReadOnlyThemeCanOnlyBeSavedAsAnother) {
    for (const char* value : {"1", "TRUE"}) {
        InstallTheme(kGlobalThemes, "coast", "Coast", value);
        OpenAndRecolour();
        PersonSavesAs("", "", false);
        window->cmdSave.UserClick();
        EXPECT_TRUE(IsModified());
    }
    EXPECT_THAT(Log(), testing::IsSupersetOf(
                           {"Source theme is read-only. Needs to be saved as some other theme.",
                            "Save as operation cancelled"}));
    SaveAs("bay", "The Bay", false);
    const std::string readOnly =
        "This theme is read only. Please enter new theme details to save as:";
    EXPECT_THAT(saveAsPrompts, ElementsAre(readOnly, readOnly, "\r\nEnter new theme details:"));
    ExpectBayInstalled();  // and it is not read-only
    EXPECT_FALSE(IsModified());
}

TEST_F(SaveTheme, ClosingAppliesWhatItSavesAndSwitchingDoesNot) {
    world.application.web->themes.push_back({"moor", "Moor"});
    world.files.PutFile(kHostThemes + "moor\\theme.css", "");
    OpenAndRecolour();
    for (int question = 0; question < 4; ++question)
        world.toolkit.WillAnswer(Answer::kYes);
    window->cmbThemeLabel.UserSelect(1);
    ExpectLastMessage(
        "The web shows \"coast\" without the changes: it is saved among your own themes only.",
        kInformationIcon);
    EXPECT_EQ(window->cmbThemeName.Text(), "moor");
    EXPECT_EQ(world.files.Bytes(kHostThemes + "coast\\wave.gif"), "coast/wave.gif");
    ExpectHolds(kUserThemes + "coast\\coast.elm", kRecoloured);

    OpenAndRecolour();
    window->cmdCancel.UserClick();
    EXPECT_FALSE(window->IsLoaded());
    EXPECT_EQ(world.files.Bytes(kHostThemes + "coast\\wave.gif"), kWave);
    EXPECT_EQ(world.automation.calls.back(), "vtiBringToTop");
}

TEST_F(SaveTheme, RefusesWithoutTheFoldersOfThemesOrTheSource) {
    OpenAndRecolour();
    const auto expectRefusal = [&](const std::string& logged, const std::string& message) {
        SaveAs("bay", "The Bay", true);
        ExpectLastMessage(message, kCriticalIcon);
        EXPECT_EQ(Log().back(), logged);
    };
    world.files.DeleteFolder(kGlobalThemes + "coast");
    expectRefusal("Unable to locate source theme", "Unable to locate source theme");
    world.registry.Put(kCurrentUser, "Software\\Microsoft\\Office\\11.0\\Common\\General", "Themes",
                       "");
    expectRefusal("Unable to determine user themes folder path",
                  "Unable to determine user themes folder path.");
    world.registry.Put(kClassesRoot, "FrontPage.Explorer.6.0\\CLSID", "", "");
    expectRefusal("Unable to determine global themes folder path",
                  "Unable to determine global themes folder path.");
    EXPECT_THAT(world.application.webCalls, IsEmpty());
}

TEST_F(SaveTheme, TellsWhenTheHostDoesNotFetchTheNewTheme) {
    world.automation.results["vtiMakeThemeFresh"] = 0;
    OpenAndRecolour();
    SaveAs("bay", "The Bay", true);
    ExpectLastMessage(
        "New theme was added to the active web but could not be downloaded automatically.",
        kInformationIcon);
    EXPECT_TRUE(world.files.HasFile(kWebThemes + "bay\\bay.inf"));
    EXPECT_TRUE(IsModified());
}

TEST_F(SaveTheme, NamesWhatFailedAndWhere) {
    const auto expectFailure = [&](const std::string& logged) {
        SaveAs("bay", "The Bay", true);
        ExpectLastMessage("Error occured while saving theme.", kCriticalIcon);
        EXPECT_EQ(Log().back(), logged + " in function SaveTheme");
        EXPECT_TRUE(IsModified());
    };
    OpenAndRecolour();
    world.files.FailOn(kUserThemes + "bay\\bay.elm");
    expectFailure("4B (Path/File access error: " + kUserThemes + "bay\\bay.elm) occured on line 6");
    world.files.FailNoMore();
    world.files.FailOn("C:\\Web\\index.htm");
    expectFailure("4B (Path/File access error: C:\\Web\\index.htm) occured on line 7");
    world.files.FailNoMore();
    world.files.DeleteFolder(kUserThemes + "bay");
    world.application.whenRefreshed = [refreshed = 0]() mutable {
        if (++refreshed == 1) throw std::bad_alloc();
    };
    expectFailure("7 (Out of memory) occured on line 8");
    world.application.web.reset();
    world.files.DeleteFolder(kUserThemes + "bay");
    expectFailure("5B (The web has no folder for the theme) occured on line 6");
    EXPECT_EQ(window->LastSave().failure, "The web has no folder for the theme");
    SaveAs("", "", true);
    EXPECT_EQ(window->LastSave().failure, "");
}

}  // namespace
}  // namespace morpho::test
