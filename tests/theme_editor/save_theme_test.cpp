#include "theme_editor/save_world.h"

namespace morpho::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

// Writes down every text that a label shows.
class StatusTexts : public Peer {
  public:
    explicit StatusTexts(Label& label) : label_(label) { label.Attach(this); }
    ~StatusTexts() override { label_.Attach(nullptr); }
    Lines texts;

  protected:
    void Write(Aspects changed) override {
        if (changed == aspect::kCaption) texts.push_back(label_.Caption());
    }

  private:
    Label& label_;
};

struct SaveTheme : testing::Test {
    SaveWorld world;
    FakePlatform& p = world.p;

    void Open() {
        world.OpenAndRecolour();
        p.TurnLogOn();
    }
    void SaveAs(const std::string& name, const std::string& title, bool apply) {
        world.PersonSavesAs(name, title, apply);
        world.window->cmdSaveAs.UserClick();
    }
    void Save(Answer overwrite) {
        p.toolkit.WillAnswer(overwrite);
        world.window->cmdSave.UserClick();
    }
    // Closing asks about unsaved changes only while there are some.
    bool IsModified() {
        const auto asked = p.toolkit.Messages().size();
        p.toolkit.WillAnswer(Answer::kCancel);
        const bool closed = world.window->UserClose();
        return !closed && p.toolkit.Messages().size() == asked + 1;
    }
    void ExpectLastMessage(const std::string& text, int flags) {
        ASSERT_FALSE(p.toolkit.Messages().empty());
        EXPECT_EQ(p.toolkit.Messages().back().text, text);
        EXPECT_EQ(p.toolkit.Messages().back().flags, flags);
        EXPECT_EQ(p.toolkit.Messages().back().title, "Theme Morpho");
        EXPECT_TRUE(world.IsUsable());
    }
    std::string InfOf(const std::string& folder, const std::string& name) {
        return p.files.Bytes(folder + name + "\\" + name + ".inf");
    }
};

const std::string kBayInf =
    "[info]\r\ntitle=The Bay\r\nreadonly=0\r\nformat=2\r\n[titles]\r\n1033=The Bay\r\n";
const std::string kRecoloured = "|h40 s1 b1";

TEST_F(SaveTheme, SaveAsInstallsTheThemeAndShowsItInTheWeb) {
    Open();
    StatusTexts status(world.window->lblStatus);
    SaveAs("bay", "The Bay", true);
    EXPECT_THAT(
        p.LogLines(),
        ElementsAre("Saving theme \"The Bay\" (bay)...", "Source theme: coast",
                    "Source theme found in " + kGlobalThemes + "coast",
                    "Using OM to create theme folder on the web...",
                    "Copying theme files to the web...", "Marking the new theme as fresh...",
                    "Updating local theme files...", "SaveAs: Applying theme to web...",
                    "Refreshing web...", "Recalculating hyperlinks...", "Theme saved."));
    EXPECT_THAT(
        status.texts,
        ElementsAre("Creating theme folder...", "Copying back.gif...", "Copying graph0.css...",
                    "Copying graph1.css...", "Copying shell.gif...", "Copying theme.css...",
                    "Copying wave.gif...", "Copying bay.inf...", "Refreshing theme...",
                    "Applying theme to web...", "Refreshing web...", "Recalculating links...", ""));
    EXPECT_THAT(p.automation.calls,
                ElementsAre("vtiMakeThemeFresh bay, file:///C:/Web, True, True"));
    EXPECT_EQ(InfOf(kUserThemes, "bay"), kBayInf);
    EXPECT_THAT(p.files.Bytes(kUserThemes + "bay\\bay.elm"),
                testing::HasSubstr("<==MS-Theme==>wave" + kRecoloured + "<==MS-Theme==>shell"));
    for (const std::string& folder : {kWebThemes, kHostThemes}) {
        EXPECT_EQ(p.files.Bytes(folder + "bay\\wave.gif"), "wave" + kRecoloured);
        EXPECT_THAT(InfOf(folder, "bay"), testing::HasSubstr("title=The Bay"));
        EXPECT_FALSE(p.files.HasFile(folder + "bay\\coast.inf"));
    }
    EXPECT_EQ(p.application.web->themeOfWeb, "bay");
    EXPECT_TRUE(world.IsUsable());
    EXPECT_FALSE(IsModified());
}

TEST_F(SaveTheme, SaveAsWithoutApplyingLeavesTheWebAsItWas) {
    p.files.DeleteFolder("C:\\Ann");  // the user's first theme
    Open();
    SaveAs("bay", "The Bay", false);
    EXPECT_THAT(p.LogLines(), Contains("Removing web theme folder..."));
    EXPECT_EQ(InfOf(kUserThemes, "bay"), kBayInf);
    EXPECT_FALSE(p.files.HasFolder(kWebThemes + "bay"));
    EXPECT_FALSE(p.files.HasFolder(kHostThemes + "bay"));
    EXPECT_EQ(p.application.web->themeOfWeb, "coast");
    EXPECT_EQ(p.application.webCalls.back(), "RecalcHyperlinks");
}

TEST_F(SaveTheme, AFolderThatTheWebHadBeforeIsNotDeleted) {
    p.files.PutFile(kWebThemes + "bay\\own.gif", "the web's");
    Open();
    SaveAs("bay", "The Bay", false);
    EXPECT_EQ(p.files.Bytes(kWebThemes + "bay\\own.gif"), "the web's");
    EXPECT_EQ(InfOf(kUserThemes, "bay"), kBayInf);
}

TEST_F(SaveTheme, AWebThatHidesItsFoldersGetsThemFromTheExplorer) {
    p.application.web->properties.clear();
    p.automation.whenCalled = [this](std::string_view method) {
        if (method == "vtiCreateFolder") p.files.PutFolder(kWebThemes + "bay");
    };
    Open();
    SaveAs("bay", "The Bay", true);
    EXPECT_THAT(p.LogLines(), Contains("Using OLE to create theme folder on the web..."));
    EXPECT_THAT(p.automation.calls, Contains("vtiCreateFolder _themes/bay"));
    EXPECT_EQ(p.files.Bytes(kWebThemes + "bay\\wave.gif"), "wave" + kRecoloured);
}

TEST_F(SaveTheme, SaveWritesTheThemeOverItselfAfterAQuestion) {
    world.InstallTheme(kUserThemes, "coast", "Coast");
    Open();
    const auto before = world.Tree();
    Save(Answer::kNo);
    EXPECT_EQ(world.Tree(), before);
    EXPECT_THAT(p.toolkit.Messages().back().text,
                testing::HasSubstr("theme used on another web\r\n may inadvertently"));
    EXPECT_EQ(p.toolkit.Messages().back().flags, kYesNo | kQuestionIcon);
    EXPECT_TRUE(world.window->cmdUndo.Enabled());

    p.shell.debugLines.clear();
    Save(Answer::kYes);
    EXPECT_THAT(p.LogLines(),
                ElementsAre("Saving theme \"Coast\" (coast)...", "Source theme: coast",
                            "Source theme found in " + kGlobalThemes + "coast",
                            "Save: Applying theme to web...", "Save: Applying theme to page...",
                            "index.htmSave: Applying theme to page...", "Refreshing web...",
                            "Recalculating hyperlinks...", "Theme saved."));
    EXPECT_THAT(p.application.webCalls,
                ElementsAre("ApplyTheme coast", "ApplyTheme coast to index.htm", "Refresh",
                            "RecalcHyperlinks"));
    EXPECT_EQ(p.files.Bytes(kHostThemes + "coast\\wave.gif"), "wave" + kRecoloured);
    EXPECT_EQ(before.at("common\\microsoft shared\\themes11\\coast\\coast.elm"),
              p.files.Bytes(kGlobalThemes + "coast\\coast.elm"));
    EXPECT_THAT(p.files.Bytes(kUserThemes + "coast\\coast.elm"), testing::HasSubstr(kRecoloured));
}

TEST_F(SaveTheme, WhatWasSavedOverTheOriginalsIsNotRecolouredTwice) {
    Open();
    Save(Answer::kYes);
    EXPECT_FALSE(world.window->cmdUndo.Enabled());
    world.window->sldHue.UserSettle(5);
    EXPECT_EQ(p.files.Bytes(kWork + "wave.gif"), "wave" + kRecoloured + "|h5 s1 b1");
}

TEST_F(SaveTheme, AWebThatUsesAnotherThemeIsLeftAlone) {
    p.application.web->themeOfWeb = "moor";
    Open();
    Save(Answer::kYes);
    EXPECT_THAT(p.application.webCalls, ElementsAre("Refresh", "RecalcHyperlinks"));
    EXPECT_FALSE(IsModified());
}

TEST_F(SaveTheme, AReadOnlyThemeCanOnlyBeSavedAsAnother) {
    for (const char* value : {"1", "TRUE"}) {
        world.InstallTheme(kGlobalThemes, "coast", "Coast", value);
        Open();
        world.PersonSavesAs("", "", false);
        world.window->cmdSave.UserClick();
        EXPECT_TRUE(IsModified());
    }
    EXPECT_THAT(
        p.LogLines(),
        testing::IsSupersetOf({"Source theme is read-only. Needs to be saved as some other theme.",
                               "Save as operation cancelled"}));
    SaveAs("bay", "The Bay", false);
    const std::string readOnly =
        "This theme is read only. Please enter new theme details to save as:";
    EXPECT_THAT(world.prompts, ElementsAre(readOnly, readOnly, "\r\nEnter new theme details:"));
    EXPECT_EQ(InfOf(kUserThemes, "bay"), kBayInf);  // and the new theme is not read-only
    EXPECT_FALSE(IsModified());
}

TEST_F(SaveTheme, ClosingAppliesWhatItSavesAndSwitchingDoesNot) {
    p.application.web->themes.push_back({"moor", "Moor"});
    p.files.PutFile(kHostThemes + "moor\\theme.css", "");
    Open();
    for (const Answer answer : {Answer::kYes, Answer::kYes})
        p.toolkit.WillAnswer(answer);
    world.window->cmbThemeLabel.UserSelect(1);
    EXPECT_EQ(world.window->cmbThemeName.Text(), "moor");
    EXPECT_EQ(p.files.Bytes(kHostThemes + "coast\\wave.gif"), "wave");
    EXPECT_THAT(p.files.Bytes(kUserThemes + "coast\\coast.elm"), testing::HasSubstr(kRecoloured));

    Open();
    for (const Answer answer : {Answer::kYes, Answer::kYes})
        p.toolkit.WillAnswer(answer);
    world.window->cmdCancel.UserClick();
    EXPECT_FALSE(world.window->IsLoaded());
    EXPECT_EQ(p.files.Bytes(kHostThemes + "coast\\wave.gif"), "wave" + kRecoloured);
    EXPECT_EQ(p.automation.calls.back(), "vtiBringToTop");
}

TEST_F(SaveTheme, RefusesWithoutTheFoldersOfThemesOrTheSource) {
    Open();
    world.PersonSavesAs("bay", "The Bay", true);
    const auto expectRefusal = [&](const std::string& text) {
        world.window->cmdSaveAs.UserClick();
        ExpectLastMessage(text, kCriticalIcon);
    };
    p.files.DeleteFolder(kGlobalThemes + "coast");
    expectRefusal("Unable to locate source theme");
    const std::string office = "Software\\Microsoft\\Office\\11.0\\Common\\General";
    p.registry.PutString(kCurrentUser, office, "Themes", "");
    expectRefusal("Unable to determine user themes folder path.");
    p.registry.PutString(kClassesRoot, "FrontPage.Explorer.6.0\\CLSID", "", "");
    expectRefusal("Unable to determine global themes folder path.");
    EXPECT_THAT(p.LogLines(),
                testing::IsSupersetOf({"Unable to locate source theme",
                                       "Unable to determine user themes folder path",
                                       "Unable to determine global themes folder path"}));
    EXPECT_THAT(p.application.webCalls, IsEmpty());
}

TEST_F(SaveTheme, TellsWhenTheHostDoesNotFetchTheNewTheme) {
    p.automation.results["vtiMakeThemeFresh"] = 0;
    Open();
    SaveAs("bay", "The Bay", true);
    ExpectLastMessage(
        "New theme was added to the active web but could not be downloaded automatically.",
        kInformationIcon);
    EXPECT_TRUE(p.files.HasFile(kWebThemes + "bay\\bay.inf"));
    EXPECT_TRUE(IsModified());
}

TEST_F(SaveTheme, NamesWhatFailedAndWhere) {
    const auto expectFailure = [&](const std::string& logged) {
        SaveAs("bay", "The Bay", true);
        ExpectLastMessage("Error occured while saving theme.", kCriticalIcon);
        EXPECT_EQ(p.LogLines().back(), logged + " in function SaveTheme");
        EXPECT_TRUE(IsModified());
    };
    Open();
    p.files.FailOn(kUserThemes + "bay\\bay.elm", ErrorNumber::kDiskFull);
    expectFailure("3D (Path/File access error: " + kUserThemes + "bay\\bay.elm) occured on line 6");
    p.files.FailNoMore();
    p.files.FailOn("C:\\Web\\index.htm");
    expectFailure("4B (Path/File access error: C:\\Web\\index.htm) occured on line 7");
    p.application.web.reset();
    p.files.DeleteFolder(kUserThemes + "bay");
    expectFailure("5B (The web has no folder for the theme) occured on line 6");
}

}  // namespace
}  // namespace morpho::test
