#include "frontpage/mod_fpole.h"

#include <gmock/gmock.h>

#include "support/fake_platform.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Explorer : testing::Test {
    FakePlatform p;
    Explorer() { SetFrontPageProgIDs(p.component, "6.0"); }

    std::int32_t NumberWhenAnswered(const AutomationValue& answer) {
        p.automation.results["vtiCreateFolder"] = answer;
        return FPCreateFolder(p.program, "_themes/new");
    }
};

TEST_F(Explorer, IdentifiersTakeTheWholeVersionText) {
    SetFrontPageProgIDs(p.component, "5.0.2");
    EXPECT_EQ(p.component.explorerProgId, "FrontPage.Explorer.5.0.2");
    EXPECT_EQ(p.component.editorProgId, "FrontPage.Editor.5.0.2");
}

TEST_F(Explorer, EachWrapperCallsItsMethodAndLetsTheObjectGo) {
    FPBringToTop(p.program);
    FPCreateFolder(p.program, "_themes/new");
    FPGetDocToFile(p.program, "a.htm", "C:\\a.htm");
    FPIsFolderInWeb(p.program, "_themes/new");
    FPMakeThemeFresh(p.program, "new", "file:///C:/Web", true, false);
    EXPECT_THAT(p.automation.calls,
                ElementsAre("vtiBringToTop", "vtiCreateFolder _themes/new",
                            "vtiGetDocToFile a.htm, C:\\a.htm", "vtiIsFolderInWeb _themes/new",
                            "vtiMakeThemeFresh new, file:///C:/Web, True, False"));
    EXPECT_EQ(p.automation.alive, 0);
}

TEST_F(Explorer, ResultsAreConverted) {
    EXPECT_EQ(NumberWhenAnswered(7), 7);
    EXPECT_EQ(NumberWhenAnswered(true), -1);
    EXPECT_EQ(NumberWhenAnswered(std::string("12")), 12);
    EXPECT_EQ(NumberWhenAnswered(std::string("12 folders")), 0);
    EXPECT_EQ(NumberWhenAnswered(std::monostate{}), 0);
    p.automation.results["vtiIsFolderInWeb"] = std::string("True");
    EXPECT_TRUE(FPIsFolderInWeb(p.program, "images"));
    p.automation.results["vtiIsFolderInWeb"] = 1;
    EXPECT_TRUE(FPIsFolderInWeb(p.program, "images"));
}

TEST_F(Explorer, EveryFailureIsTheNeutralValue) {
    p.automation.results.clear();
    EXPECT_FALSE(FPIsFolderInWeb(p.program, "images"));
    EXPECT_EQ(FPMakeThemeFresh(p.program, "a", "b", true, true), 0);
    EXPECT_EQ(p.automation.alive, 0);

    SetFrontPageProgIDs(p.component, "6.0.1");  // no class of this name
    p.automation.calls.clear();
    EXPECT_EQ(FPCreateFolder(p.program, "images"), 0);
    EXPECT_EQ(FPGetDocToFile(p.program, "a.htm", "C:\\a.htm"), 0);
    p.component.explorerProgId.clear();  // no editor has started
    FPBringToTop(p.program);
    EXPECT_THAT(p.automation.calls, IsEmpty());
}

}  // namespace
}  // namespace morpho::test
