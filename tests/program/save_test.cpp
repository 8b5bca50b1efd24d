#include <sys/stat.h>

#include "program.h"

namespace {

namespace fs = std::filesystem;
using morpho::Tree;
using nlohmann::json;

using Save = ProgramTest;

const std::string kRecolour = "recolor WEB --theme orrery --select all --hue 60 --apply ";

Tree WithoutTheme(Tree web, const std::string& theme) {
    std::erase_if(
        web, [&](const auto& file) { return file.first.starts_with("_themes/" + theme + "/"); });
    return web;
}

// The web as it must be once its pages have another theme than the sample's.
Tree Rethemed(Tree web, const std::string& theme) {
    for (const char* const page : {"index.htm", "news.htm", "gallery/index.htm"})
        web[page] = Replaced(Replaced(web[page], "orrery 1011, default", theme + " 1011, default"),
                             "_themes/orrery/", "_themes/" + theme + "/");
    return web;
}

// Every picture of the one folder is in the other, byte for byte.
void ExpectPictures(const Tree& expected, const Tree& theme) {
    for (const auto& [name, bytes] : expected) {
        const bool isPicture = name.ends_with(".gif") || name.ends_with(".jpg");
        EXPECT_TRUE(!isPicture || theme.at(name) == bytes) << name;
    }
}

TEST_F(Save, AsAnotherGivesTheWebANewThemeThatItsPagesShow) {
    const Tree before = Web();
    Report(kRecolour + "--export OUT");
    EXPECT_EQ(Report(kRecolour + "--save-as auto --apply-to-web")["saved"],
              json({{"name", "orrery2"},
                    {"title", "Orrery2"},
                    {"web", true},
                    {"applied", true},
                    {"pagesWithOwnTheme", {{"almanac", 1}}}}));
    EXPECT_EQ(WithoutTheme(Web(), "orrery2"), Rethemed(before, "orrery2"));
    ExpectPictures(home_.FilesIn("out"), Theme("orrery2"));
    EXPECT_NE(Theme("orrery2")["orrbnra.gif"], Theme("orrery")["orrbnra.gif"]);
    EXPECT_EQ(Theme("orrery2")["orre1011.css"], Theme("orrery")["orre1011.css"]);
    for (const char* const description : {"orrery2.inf", "orrery2.utf8"})
        EXPECT_NE(Theme("orrery2")[description].find("title=Orrery2"), std::string::npos);
    EXPECT_FALSE(Theme("orrery2").contains("orrery.utf8"));
    EXPECT_EQ(Report("recolor WEB --theme orrery2 --hue 20 --apply --save")["saved"]["applied"],
              true);
    EXPECT_EQ(WithoutTheme(Web(), "orrery2"), Rethemed(before, "orrery2"));
}

TEST_F(Save, PagesThatNameTheirThemeThemselvesFollowWhenTheyAreTold) {
    Tree expected = Web();
    ExpectRefusal("apply WEB --theme orrery --in-place-of night", 1, "No page of the web has");
    EXPECT_EQ(Web(), expected);
    EXPECT_EQ(Run("apply WEB --theme orrery --in-place-of almanac").status, 0);
    expected["visit.htm"] = Replaced(expected["visit.htm"], "almanac 011", "orrery 011");
    // Its pictures have other names than those of "orrery", so their addresses stay.
    EXPECT_EQ(Web(), expected);
    Report(kRecolour + "--save-as night --apply-to-web --apply-to-pages");
    expected["visit.htm"] = Replaced(expected["visit.htm"], "orrery 011", "night 011");
    EXPECT_EQ(Web()["visit.htm"], expected["visit.htm"]);
}

TEST_F(Save, AsAnotherWithoutTheWebKeepsTheThemeWithTheUser) {
    const Tree before = Web();
    EXPECT_EQ(
        Report(kRecolour + "--save-as night --title 'Orrery by night'")["saved"],
        json(
            {{"name", "night"}, {"title", "Orrery by night"}, {"web", false}, {"applied", false}}));
    EXPECT_EQ(Web(), before);
    const std::string night = "data/morpho/AppData/Microsoft/Themes/night/night";
    EXPECT_TRUE(home_.Has(night + ".elm"));
    EXPECT_NE(home_.Read(night + ".inf").find("Orrery by night"), std::string::npos);
}

TEST_F(Save, OverwritesTheThemeWhereTheWebUsesIt) {
    const Tree before = Web();
    Report(kRecolour + "--export OUT");
    EXPECT_EQ(Report(kRecolour + "--save")["saved"]["applied"], true);
    ExpectPictures(home_.FilesIn("out"), Theme("orrery"));
    EXPECT_EQ(WithoutTheme(Web(), "orrery"), WithoutTheme(before, "orrery"));
}

TEST_F(Save, OfAThemeThatTheWebDoesNotUseIsForTheUserAloneAndSaysSo) {
    const std::string description = "web/_themes/almanac/almanac.inf";
    home_.Write(description, Replaced(home_.Read(description), "ReadOnly=true", "ReadOnly=0"));
    const Tree before = Web();
    const Outcome outcome = Run("recolor WEB --theme almanac --hue 60 --apply --save --json");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(json::parse(outcome.out)["saved"]["web"], false);
    EXPECT_NE(outcome.err.find("does not use \"almanac\""), std::string::npos) << outcome.err;
    EXPECT_TRUE(home_.Has("data/morpho/AppData/Microsoft/Themes/almanac/almanac.elm"));
    EXPECT_EQ(Web(), before);
}

TEST_F(Save, RefusesWithTheDialogsOwnWordsAndChangesNothing) {
    const auto expectRefusal = [this](const std::string& arguments, int status, const char* says) {
        ExpectRefusal("recolor WEB --theme " + arguments, status, says);
    };
    expectRefusal("almanac --hue 9 --apply --save", 1, "read-only");
    expectRefusal("orrery --save-as ORRERY", 1, "This theme name is being used by another theme.");
    expectRefusal("orrery --save --export OUT", 2, "");
    expectRefusal("orrery --save --title T", 2, "title");
    for (const char* const forgotten :
         {"--save-as= --title T", "--save-as --title T", "--save-as ''",
          "--save-as n --title=", "--save-as n --title ''", "--save-as n --title --json",
          "--export= --json", "--select= --save"})
        expectRefusal(std::string("orrery ") + forgotten, 2, "");
    ExpectRefusal("recolor WEB/nowhere --theme orrery --save --dry-run", 1, "web/nowhere");
    ExpectRefusal("apply WEB --theme nonsense", 1, "nonsense");
    ExpectRefusal("apply WEB --theme ''", 2, "--theme");
    ExpectRefusal("apply '' --theme orrery", 2, "WEB");
}

TEST_F(Save, TellsWhyItIsRefused) {
    // The file stands where a folder of the user's data must be.
    const auto expectTold = [this](const char* file, const char* reason, const char* refusal) {
        SCOPED_TRACE(file);
        const Tree before = Web();
        home_.Write(file, "");
        const Outcome outcome = Run(kRecolour + "--save");
        EXPECT_EQ(outcome.status, 1);
        const auto told = outcome.err.find(reason);
        EXPECT_NE(told, std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.err.find(reason, told + 1), std::string::npos) << outcome.err;
        EXPECT_NE(outcome.err.find(refusal), std::string::npos) << outcome.err;
        EXPECT_EQ(Web(), before);
        fs::remove_all(home_ / "data");
    };
    expectTold("data/morpho/webs", "a folder is expected there.\n",
               "\nmorpho: Unable to locate source theme\n");
    expectTold("data/morpho/AppData/Microsoft/Themes", "a folder is expected there.\n",
               "morpho: Error occured while saving theme. \"");
}

TEST_F(Save, ApplyingKeepsTheWebsOwnThemeUnlessToldOtherwise) {
    // Another web's theme of the same name, saved by the same user.
    Report(kRecolour + "--save");
    const Tree recoloured = Theme("orrery");
    fs::rename(home_ / "data", home_ / "data kept");
    StartAfresh();
    fs::rename(home_ / "data kept", home_ / "data");
    ExpectRefusal("apply WEB --theme orrery", 1, "--overwrite");
    EXPECT_EQ(Run("apply WEB --theme orrery --overwrite").status, 0);
    ExpectPictures(recoloured, Theme("orrery"));
    for (const char* const page : {"index.htm", "news.htm", "gallery/index.htm"})
        home_.Write(std::string("web/") + page, "<p>no theme</p>");
    const Outcome outcome = Run("apply WEB --theme almanac");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("none takes the web's theme"), std::string::npos) << outcome.err;
}

TEST_F(Save, ADryRunTellsWhatWouldBeWrittenAndWritesNothing) {
    const Tree before = Web();
    fs::create_symlink("web", home_ / "link");
    const std::string pipe = home_ / "web/pipe.htm";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const Outcome outcome =
        Run(Replaced(kRecolour, "WEB", home_ / "link") + "--save-as auto --apply-to-web --dry-run");
    fs::remove(pipe);
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const auto tells = [&](const std::string& line) {
        return outcome.out.find(line) != std::string::npos;
    };
    EXPECT_TRUE(tells("would create " + home_ / "web/_themes/orrery2/orrbnra.gif\n"));
    EXPECT_TRUE(tells("would change " + home_ / "web/index.htm\n"));
    EXPECT_FALSE(tells("visit.htm"));
    EXPECT_EQ(Web(), before);
    EXPECT_FALSE(home_.Has("data"));
    EXPECT_EQ(Run(kRecolour + "--export OUT --dry-run").status, 0);
    EXPECT_FALSE(home_.Has("out"));
}

// Whatever the moment of death: old or new, never half, and the same save then succeeds.
TEST_F(Save, KilledInTheMiddleLeavesWholeFilesAndCanBeRepeated) {
    const std::string save = kRecolour + "--save-as night --title Night --apply-to-web";
    const Tree before = Web();
    const Tree after = Rethemed(before, "night");
    for (const char* const seconds : {"0.02", "0.05", "0.08", "0.12", "0.18", "0.26", "0.40"}) {
        SCOPED_TRACE(seconds);
        StartAfresh();
        Run(save, std::string("timeout -s KILL ") + seconds);
        for (const auto& [name, bytes] : WithoutTheme(Web(), "night")) {
            if (!before.contains(name)) continue;  // it was being written beside its place
            EXPECT_TRUE(bytes == before.at(name) || bytes == after.at(name)) << name;
        }
        // The theme is there, whole, or its name is still free.
        const Outcome again = Run(save);
        EXPECT_TRUE(again.status == 0 ||
                    again.err.find("being used by another theme") != std::string::npos)
            << again.err;
        // It may have died between the theme and the pages: then they are as they were, and can
        // have it now.
        EXPECT_EQ(Run("apply WEB --theme night").status, 0);
        EXPECT_EQ(WithoutTheme(Web(), "night"), after);
    }
}

}  // namespace
