#include <sys/stat.h>

#include <future>
#include <set>
#include <vector>

#include "program.h"

namespace {

namespace fs = std::filesystem;
using morpho::Tree;
using nlohmann::json;

using RecolorCommand = ProgramTest;

const std::string kTwoSteps =
    "recolor WEB --theme orrery --select none --select active --hue 40 --apply "
    "--select none --select normal --brightness 130 --apply ";

// What follows a GIF's header and its table of 2^(n+1) colours, where the lowest bits of byte 10
// are n.
std::string BehindColours(const std::string& gif) {
    return gif.substr(13 + (3u << ((gif.at(10) & 7) + 1)));
}

TEST_F(RecolorCommand, ChangesOnlyColourTablesOfTheSelectedPictures) {
    const json report = Report(kTwoSteps + "--export OUT");
    EXPECT_EQ(report["theme"], "orrery");
    EXPECT_EQ(report["undo"], 2);
    EXPECT_EQ(report["redo"], 0);
    std::set<std::string> touched;
    for (const json& element : report["elements"]) {
        if (!element["key"].get<std::string>().starts_with("global/"))
            touched.insert(element["file"]);
    }
    const Tree before = Theme("orrery");
    const Tree after = home_.FilesIn("out");
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [name, bytes] : after) {
        EXPECT_EQ(bytes != before.at(name), touched.contains(name)) << name;
        if (bytes == before.at(name)) continue;
        EXPECT_EQ(bytes.size(), before.at(name).size()) << name;
        EXPECT_EQ(BehindColours(bytes), BehindColours(before.at(name))) << name;
    }
    EXPECT_FALSE(home_.Has("data")) << "the user's settings are left alone";
}

TEST_F(RecolorCommand, UndoOfAStepThatWasNotAppliedLeavesTheAppliedOnes) {
    const std::string recolor = "recolor WEB --theme orrery --hue 10 --apply ";
    Report(recolor + "--hue 20 --undo --hue 30 --apply --export " + home_ / "undone");
    Report(recolor + "--hue 30 --apply --export " + home_ / "straight");
    EXPECT_EQ(home_.FilesIn("undone"), home_.FilesIn("straight"));
}

TEST_F(RecolorCommand, AsksTheQualityThatWasGivenLast) {
    const auto size = [&](const std::string& steps, const std::string& folder) {
        Report("recolor WEB --theme orrery --select none,global/background-image " + steps +
               " --export " + home_ / folder);
        return home_.Read(folder + "/orrback.jpg").size();
    };
    const auto usual = size("--hue 30", "usual");
    EXPECT_GT(size("--quality 95 --hue 30", "high"), usual);
    EXPECT_LT(size("--quality 10 --hue 30", "low"), usual);
}

TEST_F(RecolorCommand, RefusesWithOneSentenceAndWritesNothing) {
    const auto expectRefusal = [this](const std::string& arguments, int status, const char* says) {
        ExpectRefusal("recolor WEB --theme " + arguments, status, says);
    };
    expectRefusal("orrery --hue 181 --export OUT", 2, "hue");
    expectRefusal("orrery --brightness -1 --export OUT", 2, "brightness");
    expectRefusal("orrery --quality 0 --export OUT", 2, "quality");
    expectRefusal("orrery --select active/nonsense --export OUT", 2, "active/nonsense");
    expectRefusal("orrery --select '' --export OUT", 2, "select");
    expectRefusal("orrery --hue 0x10 --export OUT", 2, "0x10");
    expectRefusal("orrery --apply=0 --export OUT", 2, "apply");
    expectRefusal("orrery --export ''", 2, "export");
    expectRefusal("orrery", 2, "export");
    expectRefusal("nonsense --export OUT", 1, "nonsense");
    expectRefusal("orrery --export WEB", 1, "not empty");
    expectRefusal("orrery --export WEB/no/such/folder", 1, "folder");
    expectRefusal("orrery --undo --export OUT", 1, "Undo");
    expectRefusal("orrery --hue 20 --apply --redo --export OUT", 1, "Redo");
    expectRefusal("orrery --select none --hue 20 --export OUT", 1,
                  "No theme elements have been selected");
    expectRefusal("almanac --select active/navbutton-up-pushed --export OUT", 1,
                  "navbutton-up-pushed");
    ExpectRefusal("recolor '' --theme orrery --export OUT", 2, "nothing is named");
    ExpectRefusal("recolor WEB --export OUT", 2, "theme");
    ExpectRefusal("nonsense WEB", 2, "nonsense");
    ExpectRefusal("recolor WEB/nowhere --theme orrery --export OUT", 1, "nowhere");
    ExpectRefusal("recolor WEB/index.htm --theme orrery --export OUT", 1, "index.htm");
}

TEST_F(RecolorCommand, FillsTheEmptyFolderThatItIsGiven) {
    const std::string folder = home_ / "out";
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms::owner_all);
    struct stat before = {};
    struct stat after = {};
    ASSERT_EQ(::stat(folder.c_str(), &before), 0);
    Report("recolor WEB --theme orrery --export OUT");
    ASSERT_EQ(::stat(folder.c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(home_.FilesIn("out"), Theme("orrery"));
}

TEST_F(RecolorCommand, SeveralAtOnceDoNotDisturbEachOther) {
    std::vector<std::future<Outcome>> runs;
    for (const char* const folder : {"out1", "out2", "out3", "out4"})
        runs.push_back(std::async(std::launch::async, [this, folder] {
            return Run("recolor WEB --theme almanac --hue 90 --apply --export " + home_ / folder);
        }));
    for (auto& run : runs)
        EXPECT_EQ(run.get().status, 0);
    for (const char* const folder : {"out2", "out3", "out4"})
        EXPECT_EQ(home_.FilesIn(folder), home_.FilesIn("out1"));
}

TEST_F(RecolorCommand, ABrokenPictureIsToldAndTheOthersGoOn) {
    const std::string broken = "web/_themes/orrery/orrbnra.gif";
    home_.Write(broken, home_.Read(broken).substr(0, 40));
    const Outcome outcome = Run("recolor WEB --theme orrery --hue 20 --apply --json --export OUT");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.err.find("orrbnra.gif"), std::string::npos) << outcome.err;
    const json report = json::parse(outcome.out);
    for (const json& element : report["elements"])
        EXPECT_EQ(element["recoloured"], element["file"] != "orrbnra.gif") << element["key"];
    EXPECT_EQ(home_.Read("out/orrbnra.gif"), home_.Read(broken));
}

TEST_F(RecolorCommand, HostileStyleSheetsListNothingAndEndSoon) {
    for (const char* const sheet : {"graph0.css", "graph1.css"})
        home_.Write(std::string("web/_themes/orrery/") + sheet, "");
    for (const std::string& sheet :
         {std::string(), std::string(10'000'000, '{'),
          std::string(".mstheme { top-bar-button: url(../../index.htm) } "
                      "body { background-image: url(/etc/passwd) }")}) {
        home_.Write("web/_themes/orrery/theme.css", sheet);
        EXPECT_EQ(Report("list WEB --theme orrery")[0]["elements"], json::array());
    }
}

TEST_F(RecolorCommand, ALinkInAThemeIsNoPictureOfIt) {
    fs::remove(home_ / "web/_themes/almanac/almstar.gif");
    fs::create_symlink(home_ / "web/images/logo.gif", home_ / "web/_themes/almanac/almstar.gif");
    const json report = Report("recolor WEB --theme almanac --hue 20 --apply --export OUT");
    EXPECT_EQ(report.dump().find("almstar.gif"), std::string::npos);
    EXPECT_FALSE(home_.Has("out/almstar.gif"));
}

}  // namespace
