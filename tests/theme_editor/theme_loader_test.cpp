#include "theme_editor/theme_window.h"

namespace morpho::test {

namespace {

class ThemeLoaderTest : public ThemeWindow {
  protected:
    // Opens the window on "blends", then picks the theme that was added last.
    void Load() {
        Open();
        Forget();
        world_.application.pageCalls.clear();
        window_->cmbThemeLabel.UserSelect(window_->cmbThemeLabel.ListCount() - 1);
    }

    // Whether a theme whose active sheet is `css` lists its first bullet with this file.
    void ExpectBullet(const std::string& css, const std::string& file) {
        PutTheme("odd", "Odd", {});
        for (const char* picture : {"a.gif", "b.gif", "sub\\c.gif", "caf\xC3\xA9.gif"})
            world_.files.PutFile(Original(picture, "odd"), "x");
        world_.files.PutFile("C:\\Cache\\FrontPageTempDir\\mstheme\\a.gif", "outside");
        PutSheet("odd", "graph1.css", css);
        Load();
        const Lines expected = file == "(none)" ? Lines{} : Lines{"active/list-image-1=" + file};
        EXPECT_EQ(Listed(), expected) << css;
        window_.reset();
    }

    Lines LogOf(const std::string& start) const {
        Lines lines;
        for (const std::string& line : Log()) {
            if (line.starts_with(start)) lines.push_back(line);
        }
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
    world_.files.PutFile("C:\\Temp\\Morpho\\left\\over.gif", "x");
    Load();
    EXPECT_THAT(world_.files.FilesBelow("C:\\Temp\\Morpho"),
                ElementsAre("citrus\\dot.gif", "citrus\\graph0.css", "citrus\\graph1.css",
                            "citrus\\theme.css", "Theme.htm"));
    window_->sldHue.UserSettle(40);
    window_->cmdApply.UserClick();
    EXPECT_EQ(world_.files.Bytes(Original("dot.gif", "citrus")), "citrus/dot.gif");
}

TEST_F(ThemeLoaderTest, OpensEachSheetInAScratchPageThatIsClosedUnsaved) {
    Load();
    EXPECT_THAT(
        world_.application.pageCalls,
        ElementsAre("AddPageWindow", "Insert AfterBegin", "Close", "AddPageWindow",
                    "Insert AfterBegin", "Close", "AddPageWindow", "Insert AfterBegin", "Close"));
    const std::string folder = "C:\\Temp\\Morpho\\citrus";
    EXPECT_THAT(LogOf("  Opening"), ElementsAre("  Opening " + folder + "\\graph1.css",
                                                "  Opening " + folder + "\\graph0.css",
                                                "  Opening " + folder + "\\theme.css"));
    EXPECT_THAT(LogOf("  Selector:"), ElementsAre("  Selector: .mstheme", "  Selector: .mstheme",
                                                  "  Selector: .mstheme", "  Selector: body"));
    EXPECT_EQ(LogOf("  Parsing").size(), kCatalogue.size());
}

TEST_F(ThemeLoaderTest, LogsWhatItLooksFor) {
    PutTheme("odd", "Odd", {});
    PutSheet("odd", "graph1.css",
             ".mstheme { nav-banner-image: url(gone.gif); navbutton-vert-normal: none }"
             ".mstheme { navbutton-vert-hovered: url(' here.gif') }");
    world_.files.PutFile(Original("here.gif", "odd"), "x");
    Load();
    Lines log = Log();
    log.resize(19);
    EXPECT_THAT(log,
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
                            "    Attribute found: url(' here.gif')", "      file name: here.gif",
                            "  Parsing 2 rules...",
                            "  Selector found. Looking for attribute navbutton-vert-pushed..."));
    EXPECT_EQ(LogOf("Theme loaded."), Lines{"Theme loaded."});
}

TEST_F(ThemeLoaderTest, TakesThePictureFromAnyRuleWithThatSelectorAlone) {
    ExpectBullet(".mstheme { a: b } .mstheme { list-image-1: url(a.gif) }", "a.gif");
    ExpectBullet(".mstheme { list-image-1: url(a.gif) } .mstheme { list-image-1: url(b.gif) }",
                 "a.gif");
    ExpectBullet(".MSTHEME { LIST-IMAGE-1: URL( \"A.GIF\" ) }", "A.GIF");
    ExpectBullet("<STYLE>.mstheme { list-image-1: url(a.gif) }</STYLE>", "a.gif");
    ExpectBullet(".mstheme { list-image-1: url(caf\xE9.gif) }", "caf\xC3\xA9.gif");
    ExpectBullet(".mstheme { list-image-1: url(sub\\c.gif) }", "sub\\c.gif");
    ExpectBullet(".mstheme { list-image-1: url() }", "");
    ExpectBullet(".mstheme, p { list-image-1: url(a.gif) }", "(none)");
    ExpectBullet(".mstheme p { list-image-1: url(a.gif) }", "(none)");
    ExpectBullet("p { list-image-1: url(a.gif) }", "(none)");
    ExpectBullet(".mstheme { list-image-1: a.gif }", "(none)");
    ExpectBullet(".mstheme { list-image-1: url(a.gif }", "(none)");
    ExpectBullet(".mstheme { list-image-1: url(sub) }", "(none)");
    ExpectBullet(".mstheme { list-image-1: url(..\\a.gif) }", "(none)");
    ExpectBullet("", "(none)");
}

TEST_F(ThemeLoaderTest, ASheetThatCannotBeReadLeavesOutItsElementsOnly) {
    world_.files.FailOn(Working("graph1.css"));
    Open();
    EXPECT_THAT(
        Listed(),
        ElementsAre("normal/nav-banner-image=Banner.GIF", "normal/list-image-1=nbullet.gif",
                    "normal/separator-image=line.jpg", "global/background-image=back.JPEG"));
    EXPECT_EQ(LogOf("Theme loaded.").size(), 1U);
    EXPECT_EQ(LogOf("  Parsing").size(), 15U);
}

TEST_F(ThemeLoaderTest, AFailureEndsTheLoadWithoutAMessage) {
    const auto ends = [this](const char* why) {
        Load();
        EXPECT_EQ(LogOf("Theme loaded.").size(), 0U) << why;
        EXPECT_THAT(Log().back(), testing::EndsWith("occured in cmbThemeName_Click")) << why;
        EXPECT_EQ(LastMessage(), "(none)") << why;
        EXPECT_NE(window_->LoadFailure(), "") << why;
        EXPECT_EQ(world_.application.openPages, 0) << why;
        EXPECT_THAT(browser_.asked, IsEmpty()) << why;
    };
    PutTheme("odd", "Odd", {});
    PutSheet("odd", "graph1.css", ".mstheme { list-image-1: url( }");
    ends("nothing follows url");
    PutTheme("last", "Last", {});
    world_.files.FailOn("C:\\Temp\\Morpho\\last");
    ends("the copy fails");
    world_.files.FailNoMore();
    world_.application.refusesPages = true;
    ends("the host opens no page");
}

TEST_F(ThemeLoaderTest, AfterAFailedLoadTheNextThemeLoadsAsEver) {
    world_.files.FailOn(Working("", "citrus"));
    Load();
    window_->cmbThemeLabel.UserSelect(0);
    EXPECT_EQ(Listed().size(), 7U);
    EXPECT_EQ(window_->LoadFailure(), "");
}

// Changes the first theme, then picks the second and answers the question.
class ThemeSwitchTest : public ThemeLoaderTest {
  protected:
    void Switch(Answer answer) {
        Open();
        Tick({kButton});
        window_->sldHue.UserSettle(40);
        Forget();
        world_.toolkit.WillAnswer(answer);
        window_->cmbThemeLabel.UserSelect(1);
        EXPECT_EQ(LastMessage(), "Theme \"Blends\" modified.\r\nDo you wish to save the changes ?");
        EXPECT_EQ(world_.toolkit.Messages().back().flags, 35);
        EXPECT_EQ(world_.toolkit.Messages().back().title, "Theme Morpho");
    }

    void ExpectStill() {
        EXPECT_EQ(window_->cmbThemeLabel.Text(), "Blends");
        EXPECT_EQ(window_->cmbThemeName.Text(), "blends");
        EXPECT_EQ(PictureBytes("button.gif"), "blends/button.gif|h40 s1 b1");
        EXPECT_EQ(Ticked(), std::vector<int>{kButton});
    }
};

TEST_F(ThemeSwitchTest, CancelKeepsTheChangedThemeAndAsksAgainNextTime) {
    Switch(Answer::kCancel);
    ExpectStill();
    EXPECT_THAT(Log(), ElementsAre("Changing theme combo selection to citrus...",
                                   "Earlier theme modified: blends",
                                   "Theme change/save cancelled. Reverting combo selections..."));
    world_.toolkit.WillAnswer(Answer::kNo);
    window_->cmbThemeLabel.UserSelect(1);
    EXPECT_THAT(Listed(), ElementsAre("active/list-image-1=dot.gif"));
}

TEST_F(ThemeSwitchTest, ASaveThatDoesNotSucceedKeepsTheChangedTheme) {
    Switch(Answer::kYes);
    ExpectStill();
    EXPECT_THAT(Log(), ElementsAre("Changing theme combo selection to citrus...",
                                   "Earlier theme modified: blends", "Saving modified theme...",
                                   "Theme change/save cancelled. Reverting combo selections..."));
}

TEST_F(ThemeSwitchTest, NoDropsTheChangesAndStartsAnew) {
    Switch(Answer::kNo);
    EXPECT_EQ(window_->cmbThemeName.Text(), "citrus");
    EXPECT_EQ(window_->sldHue.Value(), 0);
    EXPECT_EQ(window_->History().UndoDepth(), 0);
    EXPECT_FALSE(window_->cmdUndo.Enabled());
    window_->cmbThemeLabel.UserSelect(0);
    EXPECT_EQ(world_.toolkit.Messages().size(), 1U) << "an unchanged theme is left without a word";
}

}  // namespace

}  // namespace morpho::test
