#include <algorithm>

#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

class ThemeLoaderTest : public ThemeWindow {
  protected:
    // Opens the window on "blends", then picks the theme that was added last.
    void Load() {
        Open();
        Forget();
        world.application.openedPages = 0;
        window->cmbThemeLabel.UserSelect(window->cmbThemeLabel.ListCount() - 1);
    }
    // Loads a theme with this active sheet.
    void LoadOdd(const std::string& css) {
        PutTheme("odd", "Odd", {});
        for (const char* picture : {"a.gif", "b.gif", "sub\\c.gif", "caf\xC3\xA9.gif", "..\\a.gif"})
            world.files.PutFile(kHostThemes + "odd\\" + picture, "x");
        world.files.PutFile(kHostThemes + "odd\\graph1.css", css);
        Load();
    }
    void ExpectBullet(const std::string& css, const std::string& file) {
        LoadOdd(css);
        EXPECT_EQ(Listed(), Lines{"active/list-image-1=" + file}) << css;
    }
    Lines LogOf(const std::string& start) const {
        Lines lines = Log();
        std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(start); });
        return lines;
    }
};

TEST_F(ThemeLoaderTest, ListsTheElementsWithPicturesInTheCataloguesOrderAllTicked) {
    Open();
    EXPECT_THAT(
        Listed(),
        ElementsAre("active/nav-banner-image=banner.gif", "active/navbutton-vert-normal=button.gif",
                    "active/list-image-1=bullet.gif", "normal/nav-banner-image=Banner.GIF",
                    "normal/list-image-1=nbullet.gif", "normal/separator-image=line.jpg",
                    "global/background-image=back.JPEG"));
    EXPECT_EQ(Ticked().size(), 7U);
}

TEST_F(ThemeLoaderTest, WorksOnTheOnlyCopyAndNeverOnTheHostsFiles) {
    world.files.PutFile(kWorkRoot + "left\\over.gif", "x");
    Load();
    EXPECT_THAT(world.files.FilesBelow(kWorkRoot),
                ElementsAre("citrus\\dot.gif", "citrus\\graph0.css", "citrus\\graph1.css",
                            "citrus\\theme.css", "Theme.htm"));
    window->sldHue.UserSettle(40);
    EXPECT_EQ(world.files.Bytes(kHostThemes + "citrus\\dot.gif"), "citrus/dot.gif");
}

TEST_F(ThemeLoaderTest, LogsWhatItLooksFor) {
    LoadOdd(
        ".mstheme { nav-banner-image: url(gone.gif); navbutton-vert-normal: none }"
        ".mstheme { navbutton-vert-hovered: url('a.gif') }");
    const Lines log = Log();
    EXPECT_THAT(Lines(log.begin(), log.begin() + 18),
                ElementsAre("Changing theme combo selection to odd...", "Loading theme \"odd\"",
                            "  Opening C:\\Temp\\Morpho\\odd\\graph1.css", "  Selector: .mstheme",
                            "  Parsing 2 rules...",
                            "  Selector found. Looking for attribute nav-banner-image...",
                            "    Attribute found: url(gone.gif)", "      file name: gone.gif",
                            "        file not found", "  Parsing 2 rules...",
                            "  Selector found. Looking for attribute navbutton-vert-normal...",
                            "    Attribute found: none", "  Parsing 2 rules...",
                            "  Selector found. Looking for attribute navbutton-vert-hovered...",
                            "  Selector found. Looking for attribute navbutton-vert-hovered...",
                            "    Attribute found: url('a.gif')", "      file name: a.gif",
                            "  Parsing 2 rules..."));
    EXPECT_EQ(world.application.openedPages, 3);
    EXPECT_EQ(world.application.openPages, 0);
    EXPECT_EQ(LogOf("  Opening").back(), "  Opening C:\\Temp\\Morpho\\odd\\theme.css");
    EXPECT_THAT(LogOf("  Selector:"), ElementsAre("  Selector: .mstheme", "  Selector: .mstheme",
                                                  "  Selector: .mstheme", "  Selector: body"));
    EXPECT_EQ(LogOf("Theme loaded.").size(), 1U);
}

TEST_F(ThemeLoaderTest, TakesThePictureFromTheFirstRuleOfThatSelectorThatNamesOne) {
    ExpectBullet(".mstheme { a: b } .mstheme { list-image-1: url(a.gif) }", "a.gif");
    ExpectBullet(".mstheme { list-image-1: url(a.gif) } .mstheme { list-image-1: url(b.gif) }",
                 "a.gif");
    ExpectBullet(".MSTHEME { LIST-IMAGE-1: URL( \"A.GIF\" ) }", "A.GIF");
    ExpectBullet("<STYLE>.mstheme { list-image-1: url(a.gif) }</STYLE>", "a.gif");
    ExpectBullet(".mstheme { list-image-1: url(caf\xE9.gif) }", "caf\xC3\xA9.gif");
    ExpectBullet(".mstheme { list-image-1: url(sub\\c.gif) }", "sub\\c.gif");
    ExpectBullet(".mstheme { list-image-1: url() }", "");
}

TEST_F(ThemeLoaderTest, ListsNothingWithoutRuleNameOrPictureOfTheTheme) {
    for (const char* css :
         {".mstheme, p { list-image-1: url(a.gif) }", ".mstheme p { list-image-1: url(a.gif) }",
          ".mstheme { list-image-1: a.gif }", ".mstheme { list-image-1: url(sub) }",
          ".mstheme { list-image-1: url(..\\a.gif) }", ""}) {
        LoadOdd(css);
        EXPECT_THAT(Listed(), IsEmpty()) << css;
    }
}

TEST_F(ThemeLoaderTest, ASheetThatCannotBeReadLeavesOutItsElementsOnly) {
    world.files.FailOn(kWorkRoot + "blends\\graph1.css");
    Open();
    EXPECT_EQ(Listed().size(), 4U);
    EXPECT_EQ(Listed().front(), "normal/nav-banner-image=Banner.GIF");
}

TEST_F(ThemeLoaderTest, AFailureEndsTheLoadWithoutAMessageAndTheNextThemeLoadsAsEver) {
    const auto expectEnd = [this](const std::string& css, const char* why) {
        LoadOdd(css);
        EXPECT_THAT(LogOf("Theme loaded."), IsEmpty()) << why;
        EXPECT_THAT(Log().back(), testing::EndsWith("occured in cmbThemeName_Click")) << why;
        EXPECT_NE(window->LoadFailure(), "") << why;
        EXPECT_EQ(world.application.openPages, 0) << why;
        EXPECT_THAT(world.toolkit.Messages(), IsEmpty()) << why;
        EXPECT_THAT(window->lblStatus.Caption(), HasSubstr(window->LoadFailure())) << why;
        EXPECT_FALSE(window->wbbImagePreview.Visible()) << why;
        EXPECT_THAT(Operable(), ElementsAre("cmbThemeLabel", "cmdCancel", "btnAbout", "btnHelp"));
    };
    expectEnd(".mstheme { list-image-1: url }", "nothing follows url");
    world.files.FailOn(kWorkRoot + "odd");
    expectEnd("", "the copy fails");
    world.files.FailNoMore();
    world.application.refusesPages = true;
    expectEnd("", "the host opens no page");

    world.application.refusesPages = false;
    const int odd = window->cmbThemeLabel.ListCount() - 1;
    for (const int theme : {odd, 0}) {  // the same again, and another one
        window->cmbThemeLabel.UserSelect(theme);
        EXPECT_EQ(window->cmbThemeLabel.ListIndex(), theme);
        EXPECT_EQ(window->LoadFailure() + window->lblStatus.Caption(), "");
        EXPECT_TRUE(window->wbbImagePreview.Visible());
        EXPECT_EQ(Operable().size(), 17U);
    }
    EXPECT_EQ(Listed().size(), 7U);
}

TEST_F(ThemeLoaderTest, AChangedThemeIsLeftOnlyAfterANo) {
    Open();
    Tick({kButton});
    window->sldHue.UserSettle(40);
    std::size_t told = 0;
    const auto pickCitrus = [&](Answer answer) {
        Forget();
        world.toolkit.WillAnswer(answer);
        window->cmbThemeLabel.UserSelect(1);
        EXPECT_EQ(world.toolkit.Messages()[told].text,
                  "Theme \"Blends\" modified.\r\nDo you wish to save the changes ?");
        EXPECT_EQ(world.toolkit.Messages()[told].flags, kYesNoCancel | kQuestionIcon);
        told = world.toolkit.Messages().size();
    };
    const auto expectStill = [&] {
        EXPECT_EQ(window->cmbThemeLabel.Text() + window->cmbThemeName.Text(), "Blendsblends");
        ExpectPicture("button.gif", "blends/button.gif|h40 s1 b1");
        EXPECT_EQ(Log().front(), "Changing theme combo selection to citrus...");
        EXPECT_EQ(Log().at(1), "Earlier theme modified: blends");
        EXPECT_EQ(Log().back(), "Theme change/save cancelled. Reverting combo selections...");
    };
    pickCitrus(Answer::kCancel);
    expectStill();
    pickCitrus(Answer::kYes);  // this user has no folders of themes
    expectStill();
    EXPECT_EQ(Log().at(2), "Saving modified theme...");
    pickCitrus(Answer::kNo);
    EXPECT_THAT(Listed(), ElementsAre("active/list-image-1=dot.gif"));
    EXPECT_EQ(window->sldHue.Value(), 0);
    EXPECT_EQ(window->History().UndoDepth(), 0);
    window->cmbThemeLabel.UserSelect(0);
    EXPECT_EQ(world.toolkit.Messages().size(), told) << "an unchanged theme is left silently";
}

}  // namespace
}  // namespace morpho::test
