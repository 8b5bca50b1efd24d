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
    void TearDown() override { EXPECT_EQ(p.automation.alive, 0); }
};

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
}

TEST_F(Explorer, ResultsAreConverted) {
    const auto expectNumber = [&](const AutomationValue& answer, std::int32_t number) {
        for (const char* method : {"vtiCreateFolder", "vtiIsFolderInWeb"})
            p.automation.results[method] = answer;
        EXPECT_EQ(FPCreateFolder(p.program, "_themes/new"), number);
        EXPECT_EQ(FPIsFolderInWeb(p.program, "_themes/new"), number != 0);
    };
    expectNumber(7, 7);
    expectNumber(true, -1);
    expectNumber(std::string("True"), -1);
    expectNumber(std::string("12"), 12);
    expectNumber(std::string("12 folders"), 0);
    expectNumber(std::monostate{}, 0);
}

TEST_F(Explorer, EveryFailureIsTheNeutralValue) {
    p.automation.results.clear();
    EXPECT_FALSE(FPIsFolderInWeb(p.program, "images"));
    EXPECT_EQ(FPMakeThemeFresh(p.program, "a", "b", true, true), 0);

    p.automation.calls.clear();
    SetFrontPageProgIDs(p.component, "5.0.2");  // no class of this name
    EXPECT_EQ(p.component.explorerProgId, "FrontPage.Explorer.5.0.2");
    EXPECT_EQ(p.component.editorProgId, "FrontPage.Editor.5.0.2");
    EXPECT_EQ(FPGetDocToFile(p.program, "a.htm", "C:\\a.htm"), 0);
    p.component.explorerProgId.clear();  // no editor has started
    FPBringToTop(p.program);
    EXPECT_THAT(p.automation.calls, IsEmpty());
}

}  // namespace
}  // namespace morpho::test
