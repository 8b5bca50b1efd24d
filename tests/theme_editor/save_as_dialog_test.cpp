#include "theme_editor/save_world.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;

struct SaveAsDialog : testing::Test {
    SaveWorld world;
    frmSaveAs dialog{world.p.program};
    std::string name = "coast";
    std::string title = "Coast";
    bool apply = false;

    bool Show(const std::function<void()>& person) {
        world.p.toolkit.WillPlay("frmSaveAs", [&](Form&) { person(); });
        return dialog.RunModal("Enter new theme details:", name, title, apply);
    }
    std::string Suggested(const std::string& base) {
        name = base;
        title = "Coast";
        std::string suggested;
        Show([&] {
            suggested = dialog.txtThemeName.Text();
            dialog.cmdCancel.UserClick();
        });
        return suggested;
    }
    // What the dialog says to these entries, and where it puts the person.
    void ExpectRefused(const std::string& typedName, const std::string& typedTitle,
                       const std::string& reason, const Control& box) {
        const bool saved = Show([&] {
            dialog.txtThemeName.UserEdit(typedName);
            dialog.txtThemeTitle.UserEdit(typedTitle);
            dialog.cmdSave.UserClick();
            EXPECT_TRUE(dialog.IsVisible()) << typedName;
            EXPECT_EQ(dialog.Focused(), &box) << typedName;
            dialog.UserClose();
        });
        EXPECT_FALSE(saved);
        ASSERT_FALSE(world.p.toolkit.Messages().empty());
        const HeadlessToolkit::Message& message = world.p.toolkit.Messages().back();
        EXPECT_EQ(message.text, reason) << typedName;
        EXPECT_EQ(message.flags, kCriticalIcon);
        EXPECT_EQ(message.title, "Theme Morpho");
    }
};

TEST_F(SaveAsDialog, SuggestsTheNextFreeNumber) {
    world.p.files.PutFolder(kUserThemes + "BLENDS2");
    world.p.files.PutFolder(kGlobalThemes + "blends3");
    EXPECT_EQ(Suggested("moor"), "moor2");
    EXPECT_EQ(Suggested("Blends"), "Blends4");
    EXPECT_EQ(Suggested("Theme9"), "Theme10");
    EXPECT_EQ(Suggested("Theme007"), "Theme8");
    EXPECT_EQ(Suggested("2004"), "2005");
    EXPECT_EQ(Suggested(""), "2");
    EXPECT_EQ(Suggested("x99999999999999999999999"), "x999991000000000000000000");
}

TEST_F(SaveAsDialog, ListsTheInstalledThemesOfBothFoldersBehindTheScenes) {
    world.p.files.PutFolder(kUserThemes + "untitled");
    world.p.files.PutFolder(kUserThemes + "locked", kReadOnlyAttribute);
    world.p.files.PutFolder(kUserThemes + "cut short");
    world.p.files.PutFile(kUserThemes + "cut short#.inf", "");
    world.InstallTheme(kUserThemes, "moor", "My Moor");
    Show([&] {
        std::vector<std::string> listed;
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
    world.p.files.PutFolder(kUserThemes + "untitled");
    const std::string invalid = "Theme name must be a valid file name.";
    TextBox& nameBox = dialog.txtThemeName;
    TextBox& titleBox = dialog.txtThemeTitle;
    ExpectRefused("  ", "", "You must specify a theme name.", nameBox);
    ExpectRefused("My#Theme", "", invalid, nameBox);
    ExpectRefused("..\\up", "x", invalid, nameBox);
    ExpectRefused("moor.", "x", invalid, nameBox);
    ExpectRefused("MOOR", "  ", "You must specify a theme title.", titleBox);
    ExpectRefused("MOOR", "x",
                  "This theme name is being used by another theme. Please specify another name.",
                  nameBox);
    ExpectRefused("new", " dunes ",
                  "This theme title is being used by another theme. Please specify another title.",
                  titleBox);
}

TEST_F(SaveAsDialog, GivesBackWhatWasEnteredAndNothingWhenCancelled) {
    EXPECT_TRUE(Show([&] {
        dialog.txtThemeName.UserEdit(" My v1.2 coast ");
        dialog.txtThemeTitle.UserEdit(" Deep blue ");
        dialog.chkApplyToWeb.UserSet(true);
        dialog.cmdSave.UserClick();
    }));
    EXPECT_EQ(name, "My v1.2 coast");
    EXPECT_EQ(title, "Deep blue");
    EXPECT_TRUE(apply);

    EXPECT_FALSE(Show([&] {
        EXPECT_TRUE(dialog.chkApplyToWeb.Value());
        dialog.chkApplyToWeb.UserSet(false);
        dialog.cmdCancel.UserClick();
    }));
    EXPECT_EQ(name, "My v1.2 coast");
    EXPECT_TRUE(apply);
}

TEST_F(SaveAsDialog, CannotSaveWhenTheInstalledThemesAreUnknown) {
    world.p.files.FailOn(kUserThemes, ErrorNumber::kPermissionDenied);
    Show([&] {
        EXPECT_FALSE(dialog.cmdSave.UserClick());
        dialog.cmdCancel.UserClick();
    });
    EXPECT_EQ(world.p.toolkit.Messages().size(), 1U);
}

}  // namespace
}  // namespace morpho::test
