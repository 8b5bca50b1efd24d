#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

struct SaveAsDialog : testing::Test, SaveWorld {
    frmSaveAs dialog{world.program};
    std::string name = "coast";
    std::string title = "Coast";
    bool apply = false;

    bool Show(const std::function<void()>& person) {
        world.toolkit.WillPlay("frmSaveAs", [&](Form&) { person(); });
        return dialog.RunModal("Enter new theme details:", name, title, apply);
    }
    void Enter(const std::string& newName, const std::string& newTitle) {
        dialog.txtThemeName.UserEdit(newName);
        dialog.txtThemeTitle.UserEdit(newTitle);
        dialog.cmdSave.UserClick();
    }
    void ExpectSuggested(const std::string& base, const std::string& suggestion) {
        name = base;
        Show([&] {
            EXPECT_EQ(dialog.txtThemeName.Text(), suggestion);
            dialog.cmdCancel.UserClick();
        });
    }
    // What the dialog says to these entries, and where it puts the person.
    void ExpectRefused(const std::string& newName, const std::string& newTitle,
                       const std::string& reason, const Control& box) {
        EXPECT_FALSE(Show([&] {
            Enter(newName, newTitle);
            EXPECT_TRUE(dialog.IsVisible()) << newName;
            EXPECT_EQ(dialog.Focused(), &box) << newName;
            dialog.UserClose();
        }));
        ExpectMessage(++refused_, reason, kCriticalIcon);
    }
    std::size_t refused_ = 0;
};

TEST_F(SaveAsDialog, SuggestsTheNextFreeNumber) {
    world.files.PutFolder(kUserThemes + "BLENDS2");
    world.files.PutFolder(kGlobalThemes + "blends3");
    ExpectSuggested("moor", "moor2");
    ExpectSuggested("Blends", "Blends4");
    ExpectSuggested("Theme9", "Theme10");
    ExpectSuggested("Theme007", "Theme8");
    ExpectSuggested("2004", "2005");
    ExpectSuggested("", "2");
    ExpectSuggested("x99999999999999999999999", "x999991000000000000000000");
}

TEST_F(SaveAsDialog, ListsTheInstalledThemesOfBothFoldersBehindTheScenes) {
    world.files.PutFolder(kUserThemes + "untitled");
    world.files.PutFolder(kUserThemes + "locked", kReadOnlyAttribute);
    world.files.PutFolder(kUserThemes + "cut short");
    world.files.PutFile(kUserThemes + "cut short#.inf", "");
    InstallTheme(kUserThemes, "moor", "My Moor");
    Show([&] {
        Lines listed;
        for (int i = 0; i < dialog.lstAppThemeName.ListCount(); ++i)
            listed.push_back(dialog.lstAppThemeName.List(i) + "=" +
                             dialog.lstAppThemeTitle.List(i));
        EXPECT_THAT(listed, ElementsAre("coast=Coast", "moor=Moor", "dunes=Dunes", "moor=My Moor",
                                        "untitled="));
        EXPECT_FALSE(dialog.lstAppThemeName.Visible() || dialog.lstAppThemeTitle.Visible());
        EXPECT_EQ(dialog.lblMessage.Caption(), "Enter new theme details:");
        EXPECT_EQ(dialog.txtThemeTitle.Text(), "Coast2");
        dialog.cmdCancel.UserClick();
    });
}

TEST_F(SaveAsDialog, RefusesWhatCannotBeATheme) {
    TextBox& nameBox = dialog.txtThemeName;
    TextBox& titleBox = dialog.txtThemeTitle;
    ExpectRefused("  ", "", "You must specify a theme name.", nameBox);
    for (const char* invalid :
         {"My#Theme", "..\\up", "moor.", "None", "aux.x", "COM1", "a\nb", "Łódź"})
        ExpectRefused(invalid, "", "Theme name must be a valid file name.", nameBox);
    ExpectRefused("MOOR", "  ", "You must specify a theme title.", titleBox);
    for (const char* unstorable : {"\"Dunes\"", "'x'", "a\r\nb", "\tDunes"})
        ExpectRefused("MOOR", unstorable, "Theme title holds characters that cannot be saved.",
                      titleBox);
    const char* const nameUsed =
        "This theme name is being used by another theme. Please specify another name.";
    const char* const titleUsed =
        "This theme title is being used by another theme. Please specify another title.";
    InstallTheme(kUserThemes, "šum", "Küste");
    InstallTheme(kUserThemes, "shore", "Grün\r\ncodepage=65001");
    InstallTheme(kUserThemes, "bank",
                 "\xDC"
                 "fer");
    for (const char* used : {"MOOR", "ŠUM"})
        ExpectRefused(used, "x", nameUsed, nameBox);
    for (const char* used : {" dunes ", "KÜSTE", "grün", "Üfer"})
        ExpectRefused("new", used, titleUsed, titleBox);
}

TEST_F(SaveAsDialog, SuggestsWhatItAccepts) {
    name = "Łódź";
    title = "\"Köln\tŁódź\"";
    EXPECT_TRUE(Show([&] { dialog.cmdSave.UserClick(); }));
    EXPECT_EQ(name, "_ód_2");
    EXPECT_EQ(title, "\"Köln_Łódź\"2");
}

TEST_F(SaveAsDialog, GivesBackWhatWasEnteredAndNothingWhenCancelled) {
    EXPECT_TRUE(Show([&] {
        dialog.chkApplyToWeb.UserSet(true);
        Enter(" My v1.2 coast ", " Deep blue ");
    }));
    EXPECT_FALSE(Show([&] {
        EXPECT_TRUE(dialog.chkApplyToWeb.Value());
        dialog.chkApplyToWeb.UserSet(false);
        dialog.txtThemeName.UserEdit("other");
        dialog.cmdCancel.UserClick();
    }));
    EXPECT_EQ(name, "My v1.2 coast");
    EXPECT_EQ(title, "Deep blue");
    EXPECT_TRUE(apply);
}

TEST_F(SaveAsDialog, CannotSaveWhenTheInstalledThemesAreUnknown) {
    world.files.FailOn(kUserThemes);
    Show([&] {
        EXPECT_FALSE(dialog.cmdSave.UserClick());
        dialog.cmdCancel.UserClick();
    });
    EXPECT_EQ(world.toolkit.Messages().size(), 1U);
}

}  // namespace
}  // namespace morpho::test
