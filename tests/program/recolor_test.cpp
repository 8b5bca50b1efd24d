#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <future>
#include <nlohmann/json.hpp>
#include <set>
#include <vector>

#include "program.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

constexpr const char* kTwoSteps =
    " --select none --select active --hue 40 --apply --select none --select normal --brightness "
    "130 --apply ";

std::set<std::string> FilesOf(const json& elements, const std::string& prefix) {
    std::set<std::string> files;
    for (const json& element : elements) {
        if (element["key"].get<std::string>().starts_with(prefix)) files.insert(element["file"]);
    }
    return files;
}

TEST(RecolorCommand, ChangesOnlyColourTablesOfTheSelectedPictures) {
    const Home home;
    const Outcome outcome =
        home.Run(std::string("recolor WEB --theme orrery --json") + kTwoSteps + "--export OUT");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const json report = json::parse(outcome.out);
    EXPECT_EQ(report["theme"], "orrery");
    EXPECT_EQ(report["undo"], 2);
    EXPECT_EQ(report["redo"], 0);
    std::set<std::string> touched = FilesOf(report["elements"], "active/");
    touched.merge(FilesOf(report["elements"], "normal/"));
    const Tree before = ReadFiles(home.Theme("orrery"));
    const Tree after = ReadFiles(home.Path("out"));
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [name, bytes] : after) {
        if (!touched.contains(name)) {
            EXPECT_EQ(bytes, before.at(name)) << name;
        } else {
            EXPECT_NE(bytes, before.at(name)) << name;
            EXPECT_EQ(WithoutColours(bytes), WithoutColours(before.at(name))) << name;
        }
    }
}

TEST(RecolorCommand, UndoGivesBackEveryByte) {
    const Home home;
    const Outcome outcome = home.Run(std::string("recolor WEB --theme orrery --json") + kTwoSteps +
                                     "--undo --undo --export OUT");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(ReadFiles(home.Path("out")), ReadFiles(home.Theme("orrery")));
    const json report = json::parse(outcome.out);
    EXPECT_EQ(report["undo"], 0);
    EXPECT_EQ(report["redo"], 2);
    for (const json& element : report["elements"])
        EXPECT_FALSE(element["recoloured"]) << element["key"];
}

TEST(RecolorCommand, AsksTheQualityThatWasGivenLast) {
    const Home home;
    const std::string batch = "recolor WEB --theme orrery --select none,global/background-image ";
    const auto size = [&](const std::string& steps, const std::string& folder) {
        const Outcome outcome = home.Run(batch + steps + " --export " + home.Path(folder).string());
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        return ReadAll(home.Path(folder) / "orrback.jpg").size();
    };
    const auto high = size("--quality 95 --hue 30", "high");
    const auto low = size("--quality 10 --hue 30", "low");
    const auto usual = size("--hue 30", "usual");
    EXPECT_LT(low, usual);
    EXPECT_LT(usual, high);
}

TEST(RecolorCommand, ElementsThatShareAPictureAreSelectedTogether) {
    const Home home;
    const Outcome outcome = home.Run(
        "recolor WEB --theme almanac --select none,active/separator-image --json --export OUT");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const json elements = json::parse(outcome.out)["elements"];
    int group = 0;
    int selected = 0;
    for (const json& element : elements) {
        if (element["key"] == "active/separator-image") group = element["group"];
    }
    for (const json& element : elements) {
        EXPECT_EQ(element["selected"], element["group"] == group) << element["key"];
        selected += element["selected"].get<bool>() ? 1 : 0;
    }
    EXPECT_GT(selected, 1);
}

TEST(RecolorCommand, RefusesWithOneSentenceAndWritesNothing) {
    struct Case {
        const char* arguments;
        int status;
        const char* says;
    };
    const std::vector<Case> cases = {
        {"recolor WEB --theme orrery --hue 181 --export OUT", 2, "hue"},
        {"recolor WEB --theme orrery --brightness -1 --export OUT", 2, "brightness"},
        {"recolor WEB --theme orrery --quality 0 --export OUT", 2, "quality"},
        {"recolor WEB --theme orrery --select active/nonsense --export OUT", 2, "active/nonsense"},
        {"recolor WEB --theme orrery --select '' --export OUT", 2, "select"},
        {"recolor WEB --theme orrery --hue 0x10 --export OUT", 2, "0x10"},
        {"recolor WEB --theme orrery --apply=0 --export OUT", 2, "apply"},
        {"recolor WEB --theme orrery --export ''", 2, "export"},
        {"recolor '' --theme orrery --export OUT", 2, "WEB"},
        {"recolor WEB --theme orrery", 2, "export"},
        {"recolor WEB --export OUT", 2, "theme"},
        {"nonsense WEB", 2, "nonsense"},
        {"recolor WEB --theme nonsense --export OUT", 1, "nonsense"},
        {"recolor WEB/nowhere --theme orrery --export OUT", 1, "nowhere"},
        {"recolor WEB/index.htm --theme orrery --export OUT", 1, "index.htm"},
        {"recolor WEB --theme orrery --export WEB", 1, "not empty"},
        {"recolor WEB --theme orrery --export WEB/no/such/folder", 1, "folder"},
        {"recolor WEB --theme orrery --undo --export OUT", 1, "Undo"},
        {"recolor WEB --theme orrery --hue 20 --apply --redo --export OUT", 1, "Redo"},
        {"recolor WEB --theme orrery --select none --hue 20 --export OUT", 1,
         "No theme elements have been selected"},
        {"recolor WEB --theme almanac --select active/navbutton-up-pushed --export OUT", 1,
         "navbutton-up-pushed"},
    };
    const Home home;
    const Tree before = ReadTree(home.Web());
    for (const Case& refused : cases) {
        const Outcome outcome = home.Run(refused.arguments);
        EXPECT_EQ(outcome.status, refused.status) << refused.arguments << "\n" << outcome.err;
        EXPECT_NE(outcome.err.find(refused.says), std::string::npos) << refused.arguments << "\n"
                                                                     << outcome.err;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
        EXPECT_EQ(outcome.out, "") << refused.arguments;
        EXPECT_FALSE(fs::exists(home.Path("out"))) << refused.arguments;
    }
    EXPECT_EQ(ReadTree(home.Web()), before);
}

TEST(RecolorCommand, FillsTheEmptyFolderThatItIsGiven) {
    const Home home;
    fs::create_directory(home.Path("out"));
    fs::permissions(home.Path("out"), fs::perms::owner_all);
    struct stat before = {};
    ASSERT_EQ(::stat(home.Path("out").c_str(), &before), 0);
    ASSERT_EQ(home.Run("recolor WEB --theme orrery --export OUT").status, 0);
    struct stat after = {};
    ASSERT_EQ(::stat(home.Path("out").c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(ReadTree(home.Path("out")), ReadFiles(home.Theme("orrery")));
}

TEST(RecolorCommand, LeavesTheUsersSettingsAlone) {
    const Home home;
    ASSERT_EQ(home.Run("recolor WEB --theme orrery --hue 20 --apply --export OUT").status, 0);
    EXPECT_FALSE(fs::exists(home.Path("data/morpho/registry.reg")));
}

TEST(RecolorCommand, SeveralAtOnceDoNotDisturbEachOther) {
    const Home home;
    std::vector<std::future<Outcome>> runs;
    for (int i = 0; i < 4; ++i) {
        const std::string folder = home.Path("out" + std::to_string(i)).string();
        runs.push_back(std::async(std::launch::async, [&home, folder] {
            return home.Run("recolor WEB --theme almanac --hue 90 --apply --export " + folder);
        }));
    }
    for (auto& run : runs) {
        const Outcome outcome = run.get();
        EXPECT_EQ(outcome.status, 0) << outcome.err;
    }
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(ReadFiles(home.Path("out" + std::to_string(i))), ReadFiles(home.Path("out0")));
    }
}

TEST(RecolorCommand, ABrokenPictureIsToldAndTheOthersGoOn) {
    const Home home;
    const std::string file = ReadAll(home.Theme("orrery") / "graph1.css");
    const auto name = file.substr(file.find("nav-banner-image"));
    const auto open = name.find('(') + 1;
    const std::string banner = name.substr(open, name.find(')') - open);
    WriteAll(home.Theme("orrery") / banner, ReadAll(home.Theme("orrery") / banner).substr(0, 40));
    const Outcome outcome =
        home.Run("recolor WEB --theme orrery --hue 20 --apply --json --export OUT");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.err.find(banner), std::string::npos) << outcome.err;
    const json report = json::parse(outcome.out);
    for (const json& element : report["elements"]) {
        EXPECT_EQ(element["recoloured"], element["file"] != banner) << element["key"];
    }
    EXPECT_EQ(ReadAll(home.Path("out") / banner), ReadAll(home.Theme("orrery") / banner));
}

TEST(RecolorCommand, HostileStyleSheetsListNothingAndEndSoon) {
    struct Case {
        const char* name;
        std::string sheet;
    };
    const std::vector<Case> cases = {
        {"0 bytes", ""},
        {"10 MB of braces", std::string(10'000'000, '{')},
        {"a way out of the folder",
         ".mstheme { top-bar-button: url(../../index.htm) } body { background-image: "
         "url(/etc/passwd) }"},
        {"nothing but url", ".mstheme { top-bar-button: url }"},
    };
    for (const Case& hostile : cases) {
        const Home home;
        for (const char* sheet : {"graph0.css", "graph1.css"})
            WriteAll(home.Theme("orrery") / sheet, "");
        WriteAll(home.Theme("orrery") / "theme.css", hostile.sheet);
        const Outcome outcome = home.Run("list WEB --theme orrery --json");
        EXPECT_LE(outcome.status, 1) << hostile.name << outcome.err;
        if (outcome.status == 0) {
            EXPECT_EQ(json::parse(outcome.out)[0]["elements"], json::array()) << hostile.name;
        }
    }
}

TEST(RecolorCommand, ALinkInAThemeIsNoPictureOfIt) {
    const Home home;
    fs::remove(home.Theme("almanac") / "almstar.gif");
    fs::create_symlink(home.Web() / "images/logo.gif", home.Theme("almanac") / "almstar.gif");
    const Outcome outcome =
        home.Run("recolor WEB --theme almanac --hue 20 --apply --json --export OUT");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out.find("almstar.gif"), std::string::npos);
    EXPECT_FALSE(fs::exists(home.Path("out/almstar.gif")));
}

}  // namespace
