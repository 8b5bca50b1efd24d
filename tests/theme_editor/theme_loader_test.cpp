#include <algorithm>

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

    // What a theme with this active sheet lists.
    Lines ListedFrom(const std::string& css) {
        PutTheme("odd", "Odd", {});
        for (const char* picture : {"a.gif", "b.gif", "sub\\c.gif", "caf\xC3\xA9.gif", "..\\a.gif"})
            world_.files.PutFile(Original(picture, "odd"), "x");
        world_.files.PutFile(Original("graph1.css", "odd"), css);
        Load();
        return Listed();
    }

    void ExpectBullet(const std::string& css, const std::string& file) {
        EXPECT_EQ(ListedFrom(css), Lines{"active/list-image-1=" + file}) << css;
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
    EXPECT_EQ(world_.files.Bytes(Original("dot.gif", "citrus")), "citrus/dot.gif");
}

TEST_F(ThemeLoaderTest, LogsWhatItLooksFor) {
    PutTheme("odd", "Odd", {{"active/navbutton-vert-hovered", "here.gif"}});
    world_.files.PutFile(Original("graph1.css", "odd"),
                         ".mstheme { nav-banner-image: url(gone.gif); navbutton-vert-normal: none }"
                         ".mstheme { navbutton-vert-hovered: url('here.gif') }");
    Load();
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
                            "    Attribute found: url('here.gif')", "      file name: here.gif",
                            "  Parsing 2 rules..."));
    EXPECT_EQ(LogOf("  Parsing").size(), 38U);
    EXPECT_EQ(std::ranges::count(world_.application.pageCalls, "Close"), 3);
    EXPECT_EQ(std::ranges::count(world_.application.pageCalls, "Insert AfterBegin"), 3);
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
          ".mstheme { list-image-1: a.gif }", ".mstheme { list-image-1: url(a.gif }",
          ".mstheme { list-image-1: url(sub) }", ".mstheme { list-image-1: url(..\\a.gif) }", ""})
        EXPECT_THAT(ListedFrom(css), IsEmpty()) << css;
}

TEST_F(ThemeLoaderTest, ASheetThatCannotBeReadLeavesOutItsElementsOnly) {
    world_.files.FailOn(Working("graph1.css"));
    Open();
    EXPECT_EQ(Listed().size(), 4U);
    EXPECT_EQ(Listed().front(), "normal/nav-banner-image=Banner.GIF");
    EXPECT_EQ(LogOf("  Parsing").size(), 15U);
}

TEST_F(ThemeLoaderTest, AFailureEndsTheLoadWithoutAMessageAndTheNextThemeLoadsAsEver) {
    const auto expectEnd = [this](const char* why) {
        Load();
        EXPECT_THAT(LogOf("Theme loaded."), IsEmpty()) << why;
        EXPECT_THAT(Log().back(), testing::EndsWith("occured in cmbThemeName_Click")) << why;
        EXPECT_NE(window_->LoadFailure(), "") << why;
        EXPECT_EQ(world_.application.openPages, 0) << why;
        EXPECT_THAT(world_.toolkit.Messages(), IsEmpty()) << why;
    };
    PutTheme("odd", "Odd", {});
    world_.files.PutFile(Original("graph1.css", "odd"), ".mstheme { list-image-1: url( }");
    expectEnd("nothing follows url");
    world_.files.FailOn(Working("", "odd"));
    expectEnd("the copy fails");
    world_.files.FailNoMore();
    world_.application.refusesPages = true;
    expectEnd("the host opens no page");

    world_.application.refusesPages = false;
    window_->cmbThemeLabel.UserSelect(0);
    EXPECT_EQ(Listed().size(), 7U);
    EXPECT_EQ(window_->LoadFailure(), "");
}

TEST_F(ThemeLoaderTest, AChangedThemeIsLeftOnlyAfterANo) {
    Open();
    Tick({kButton});
    window_->sldHue.UserSettle(40);
    const auto pickCitrus = [&](Answer answer) {
        Forget();
        const std::size_t told = world_.toolkit.Messages().size();
        world_.toolkit.WillAnswer(answer);
        window_->cmbThemeLabel.UserSelect(1);
        ExpectNthMessage(told + 1,
                         "Theme \"Blends\" modified.\r\nDo you wish to save the changes ?", 35);
    };
    const auto expectStill = [&](const Lines& log) {
        EXPECT_EQ(window_->cmbThemeLabel.Text() + window_->cmbThemeName.Text(), "Blendsblends");
        ExpectPicture("button.gif", "blends/button.gif|h40 s1 b1");
        EXPECT_EQ(Log(), log);
    };
    pickCitrus(Answer::kCancel);
    expectStill({"Changing theme combo selection to citrus...", "Earlier theme modified: blends",
                 "Theme change/save cancelled. Reverting combo selections..."});
    pickCitrus(Answer::kYes);  // this user has no folders of themes
    expectStill({"Changing theme combo selection to citrus...", "Earlier theme modified: blends",
                 "Saving modified theme...", "Saving theme \"Blends\" (blends)...",
                 "Source theme: blends", "Unable to determine global themes folder path",
                 "Theme change/save cancelled. Reverting combo selections..."});
    pickCitrus(Answer::kNo);
    EXPECT_THAT(Listed(), ElementsAre("active/list-image-1=dot.gif"));
    EXPECT_EQ(window_->sldHue.Value(), 0);
    EXPECT_EQ(window_->History().UndoDepth(), 0);
    const std::size_t told = world_.toolkit.Messages().size();
    window_->cmbThemeLabel.UserSelect(0);
    EXPECT_EQ(world_.toolkit.Messages().size(), told)
        << "an unchanged theme is left without a word";
}

}  // namespace
}  // namespace morpho::test
