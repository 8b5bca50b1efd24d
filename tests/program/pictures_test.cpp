#include <sys/stat.h>

#include "program.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

using PicturesCommand = ProgramTest;

TEST_F(PicturesCommand, RecoloursEachAsTheSlidersSay) {
    const std::string pictures = "WEB/images/logo.gif WEB/images/dome.jpg ";
    const morpho::Tree before = Web();
    Report("recolor " + pictures + "--hue 120 --output-dir OUT");
    EXPECT_EQ(Web(), before);
    for (const char* name : {"logo.gif", "dome.jpg"}) {
        EXPECT_NE(home_.Read(std::string("out/") + name), before.at(std::string("images/") + name));
    }
    // A GIF keeps all but its colours, and a turn round all hues leaves even those.
    EXPECT_EQ(home_.Read("out/logo.gif").size(), before.at("images/logo.gif").size());
    Report("recolor WEB/images/dome.jpg --hue 120 --quality 20 --output " + home_ / "low.jpg");
    EXPECT_LT(home_.Read("low.jpg").size(), home_.Read("out/dome.jpg").size());
    // The same from the same, in place too; a link leads to its picture.
    fs::create_symlink(home_ / "web/images/logo.gif", home_ / "link.gif");
    Report("recolor " + home_ / "link.gif" + " --hue 120 --in-place");
    EXPECT_EQ(home_.Read("web/images/logo.gif"), home_.Read("out/logo.gif"));
    EXPECT_TRUE(fs::is_symlink(home_ / "link.gif"));
}

TEST_F(PicturesCommand, ReportsWhatItCannotRecolourAndDoesTheRest) {
    home_.Write("web/cut.gif", home_.Read("web/images/logo.gif").substr(0, 40));
    home_.Write("web/text.jpg", "no picture");
    home_.Write("web/mislabelled.gif", home_.Read("web/images/dome.jpg"));
    home_.Write("web/huge.gif", std::string("GIF89a\xFF\xFF\xFF\xFF\0\0\0;", 14));
    home_.Write("web/other/logo.gif", home_.Read("web/images/new.gif"));
    ASSERT_EQ(::mkfifo((home_ / "pipe.gif").c_str(), 0600), 0);
    const morpho::Tree before = Web();
    const Outcome outcome = Run(
        "recolor WEB/cut.gif WEB/text.jpg WEB/mislabelled.gif WEB/huge.gif " + home_ / "pipe.gif" +
        " "
        "WEB/images/logo.gif WEB/other/logo.gif WEB/missing.gif WEB/images/dome.jpg "
        "--hue 90 --output-dir OUT --json");
    EXPECT_EQ(outcome.status, 1);
    std::string done;
    const json report = json::parse(outcome.out);
    for (const json& picture : report["pictures"])
        done += picture.contains("output") ? '1' : '0';
    EXPECT_EQ(done, "000001001") << outcome.err;
    EXPECT_NE(outcome.err.find("7 of 9 pictures were not recoloured."), std::string::npos);
    EXPECT_EQ(home_.FilesIn("out").size(), 2u);
    EXPECT_EQ(Web(), before);
}

TEST_F(PicturesCommand, RefusesWithOneSentence) {
    home_.Write("there.gif", "earlier");
    const std::string logo = "recolor WEB/images/logo.gif --hue 90 ";
    ExpectRefusal(logo + "--output " + home_ / "there.gif", 1, "--force replaces it");
    EXPECT_EQ(home_.Read("there.gif"), "earlier");
    ExpectRefusal(logo + "--output " + home_ / "new.jpg", 1, "file types do not match");
    ExpectRefusal(logo + "--output " + home_ / "none/new.gif", 1, "none");
    ExpectRefusal(logo + "--output a.gif --in-place", 2, "One of");
    ExpectRefusal(logo, 2, "One of");
    ExpectRefusal(logo + "--undo --in-place", 2, "--theme is missing");
    ExpectRefusal(logo + "WEB/images/new.gif --output OUT", 2, "--output-dir");
    ExpectRefusal("recolor WEB --hue 90 --in-place", 2, "--theme says");
    ExpectRefusal("recolor WEB --theme orrery --in-place --save", 2, "for pictures");
    Report(logo + "--force --output " + home_ / "there.gif");
    EXPECT_NE(home_.Read("there.gif"), "earlier");
}

}  // namespace
