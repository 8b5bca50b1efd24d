#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <thread>
#include <vector>

#include "program.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

const std::string kRecolour = "recolor WEB --theme orrery --select all --hue 60 --apply ";

fs::path UserThemes(const Home& home) {
    return home.Path("data/morpho/AppData/Microsoft/Themes");
}

// The web's files without the folder of one theme.
Tree WithoutTheme(Tree tree, const std::string& theme) {
    std::erase_if(tree,
                  [&](const auto& file) { return file.first.starts_with("_themes/" + theme); });
    return tree;
}

bool TakesThemeOfWeb(const std::string& page) {
    return page.find("orrery 1011, default") != std::string::npos;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// A page as it must be once the web's theme is another one.
std::string Rethemed(const std::string& page, const std::string& theme) {
    return Replaced(Replaced(page, "orrery 1011, default", theme + " 1011, default"),
                    "_themes/orrery/", "_themes/" + theme + "/");
}

TEST(SaveAs, GivesTheWebANewThemeThatItsPagesShow) {
    const Home home;
    const Tree before = ReadTree(home.Web());
    const Outcome outcome = home.Run(kRecolour + "--save-as auto --apply-to-web --json");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const json saved = json::parse(outcome.out)["saved"];
    EXPECT_EQ(saved,
              json({{"name", "orrery2"}, {"title", "Orrery2"}, {"web", true}, {"applied", true}}));

    const Tree after = ReadTree(home.Web());
    int rethemed = 0;
    for (const auto& [name, bytes] : WithoutTheme(after, "orrery2")) {
        const bool takes = TakesThemeOfWeb(before.at(name)) && name.ends_with(".htm");
        EXPECT_EQ(bytes, takes ? Rethemed(before.at(name), "orrery2") : before.at(name)) << name;
        rethemed += takes ? 1 : 0;
    }
    EXPECT_EQ(rethemed, 3);
    EXPECT_EQ(WithoutTheme(after, "orrery2").size(), before.size());
    EXPECT_NE(ReadAll(home.Theme("orrery2") / "orrbnra.gif"),
              ReadAll(home.Theme("orrery") / "orrbnra.gif"));
    EXPECT_NE(ReadAll(home.Theme("orrery2") / "orrery2.inf").find("Orrery2"), std::string::npos);
    EXPECT_NE(home.Run("list WEB").out.find("orrery2"), std::string::npos);
    EXPECT_EQ(home.Run("recolor WEB --theme orrery2 --hue 20 --apply --save-as auto --json").status,
              0);
}

TEST(SaveAs, WithoutTheWebKeepsTheThemeWithTheUser) {
    const Home home;
    const Tree before = ReadTree(home.Web());
    const Outcome outcome =
        home.Run(kRecolour + "--save-as night --title 'Orrery by night' --json");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(
        json::parse(outcome.out)["saved"],
        json(
            {{"name", "night"}, {"title", "Orrery by night"}, {"web", false}, {"applied", false}}));
    EXPECT_EQ(ReadTree(home.Web()), before);
    EXPECT_TRUE(fs::exists(UserThemes(home) / "night/night.elm"));
    EXPECT_NE(ReadAll(UserThemes(home) / "night/night.inf").find("Orrery by night"),
              std::string::npos);
}

TEST(Save, OverwritesTheThemeWhereTheWebUsesIt) {
    const Home home;
    const Tree before = ReadTree(home.Web());
    const Outcome outcome = home.Run(kRecolour + "--save --json");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(json::parse(outcome.out)["saved"]["applied"], true);
    EXPECT_NE(ReadAll(home.Theme("orrery") / "orrbnra.gif"),
              before.at("_themes/orrery/orrbnra.gif"));
    EXPECT_EQ(WithoutTheme(ReadTree(home.Web()), "orrery"), WithoutTheme(before, "orrery"));
}

TEST(Save, RefusesWithTheDialogsOwnWordsAndChangesNothing) {
    struct Case {
        const char* arguments;
        int status;
        const char* says;
    };
    const std::vector<Case> cases = {
        {"recolor WEB --theme almanac --hue 9 --apply --save", 1, "read-only"},
        {"recolor WEB --theme orrery --save-as ORRERY", 1,
         "This theme name is being used by another theme."},
        {"recolor WEB --theme orrery --save-as 'a#b'", 1, "Theme name must be a valid file name."},
        {"recolor WEB --theme orrery --save-as ' '", 1, "You must specify a theme name."},
        {"recolor WEB --theme orrery --save-as n --title ''", 1, "You must specify a theme title."},
        {"recolor WEB --theme orrery --save-as n --title 'old almanac'", 1,
         "This theme title is being used"},
        {"recolor WEB --theme orrery --save --export OUT", 2, ""},
        {"recolor WEB --theme orrery --save --title T", 2, "title"},
    };
    const Home home;
    const Tree before = ReadTree(home.Web());
    for (const Case& refused : cases) {
        const Outcome outcome = home.Run(refused.arguments);
        EXPECT_EQ(outcome.status, refused.status) << refused.arguments << "\n" << outcome.err;
        EXPECT_NE(outcome.err.find(refused.says), std::string::npos) << refused.arguments << "\n"
                                                                     << outcome.err;
    }
    EXPECT_EQ(ReadTree(home.Web()), before);
}

TEST(DryRun, TellsWhatWouldBeWrittenAndWritesNothing) {
    const Home home;
    const Tree before = ReadTree(home.Web());
    const Outcome outcome = home.Run(kRecolour + "--save-as auto --apply-to-web --dry-run");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("would create " + (home.Theme("orrery2") / "orrbnra.gif").string()),
              std::string::npos);
    EXPECT_NE(outcome.out.find("would change " + (home.Web() / "index.htm").string()),
              std::string::npos);
    EXPECT_EQ(outcome.out.find("visit.htm"), std::string::npos);
    EXPECT_EQ(ReadTree(home.Web()), before);
    EXPECT_FALSE(fs::exists(home.Path("data")));
    EXPECT_EQ(home.Run(kRecolour + "--export OUT --dry-run").status, 0);
    EXPECT_FALSE(fs::exists(home.Path("out")));
}

// Whatever the moment of death: old or new, never half, and the same save then succeeds.
TEST(SaveAs, KilledInTheMiddleLeavesWholeFilesAndCanBeRepeated) {
    for (const int milliseconds : {20, 50, 80, 120, 180, 260, 400}) {
        const Home home;
        const Tree before = ReadTree(home.Web());
        const std::string limit = "timeout -s KILL 0." +
                                  std::string(milliseconds < 100 ? "0" : "") +
                                  std::to_string(milliseconds);
        home.RunUnder(limit, kRecolour + "--save-as night --title Night --apply-to-web");
        for (const auto& [name, bytes] : WithoutTheme(ReadTree(home.Web()), "night")) {
            const bool isLeftover =
                !before.contains(name);  // a file that was being written beside its place
            EXPECT_TRUE(isLeftover || bytes == before.at(name) ||
                        bytes == Rethemed(before.at(name), "night"))
                << name << " after " << milliseconds << " ms";
        }
        // The theme is there, whole, or its name is still free.
        const Outcome again = home.Run(kRecolour + "--save-as night --title Night --apply-to-web");
        EXPECT_TRUE(again.status == 0 ||
                    again.err.find("being used by another theme") != std::string::npos)
            << again.err << " after " << milliseconds << " ms";
        // It may have died between the theme and the pages: then they are as they were, and can
        // have it now.
        EXPECT_EQ(home.Run("apply WEB --theme night").status, 0) << milliseconds << " ms";
        EXPECT_NE(ReadAll(home.Web() / "index.htm").find("_themes/night/"), std::string::npos);
        EXPECT_NE(ReadAll(home.Web() / "news.htm").find("_themes/night/"), std::string::npos);
    }
}

}  // namespace
