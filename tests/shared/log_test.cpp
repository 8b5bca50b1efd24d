#include "shared/log.h"

#include <gmock/gmock.h>

#include "forms/controls.h"
#include "shared/logged_form.h"
#include "shared/reg_key.h"
#include "shared/settings.h"
#include "support/fake_platform.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAppData = "C:\\Users\\Ann\\AppData";
const std::string kFolder = kAppData + "\\Norvale Software\\Webtrove\\";

class LogTest : public ::testing::Test {
  protected:
    LogTest() {
        world_.component.logPrefix = "TM";
        world_.component.logMode = 1;
        world_.files.PutFolder(kAppData);
        world_.files.PutFolder("C:\\System", kSystemAttribute);
        PutAppData(kAppData);
    }
    void PutAppData(const std::string& value) {
        world_.registry.Put(kCurrentUser, std::string(kShellFolders), "AppData", value);
    }
    void Write(const char* text) { WriteLog(world_.program, text); }

    FakePlatform world_;
};

TEST_F(LogTest, IsSilentWhenOffAndLooksForNoFolderUnlessItWritesAFile) {
    for (const int mode : {0, 3, -1}) {
        world_.component.logMode = mode;
        Write("TM started");
    }
    EXPECT_THAT(world_.shell.debugLines, IsEmpty());
    world_.component.logMode = 2;
    Write("TM started");
    EXPECT_THAT(world_.shell.debugLines, ElementsAre("09:05:07 TM started"));
    EXPECT_EQ(world_.registry.openedKeys, 0);
    EXPECT_THAT(world_.files.FilesBelow("C:"), IsEmpty());
}

TEST_F(LogTest, AppendsToTheFileOfTheDayAndCreatesItsFolderOnce) {
    PutAppData(kAppData + "\\");
    world_.files.PutFolder(kAppData + "\\norvale software");
    world_.clock.now = {2004, 12, 31, 23, 59, 59};
    Write("Loading caf\xC3\xA9...");
    EXPECT_EQ(world_.component.logFolder, kFolder);
    world_.clock.now = {2005, 1, 1, 0, 0, 0};
    Write("one");
    world_.component.logPrefix = "IM";
    Write("two");
    Write("three");

    EXPECT_EQ(world_.files.Bytes(kFolder + "TM20041231.log"), "23:59:59 Loading caf\xE9...\r\n");
    EXPECT_EQ(world_.files.Bytes(kFolder + "TM20050101.log"), "00:00:00 one\r\n");
    EXPECT_EQ(world_.files.Bytes(kFolder + "IM20050101.log"), "00:00:00 two\r\n00:00:00 three\r\n");
    EXPECT_EQ(world_.registry.openedKeys, 1) << "it looks for the folder once";

    world_.files.FailOn(kFolder + "IM20050101.log");
    try {
        Write("lost");
        ADD_FAILURE() << "a file that cannot be written is the caller's error";
    } catch (const RunTimeError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr(kFolder + "\\IM")) << "with two separators";
    }
}

TEST_F(LogTest, TellsTheDebuggerEachTimeThatItHasNoFolderAndTriesAgain) {
    for (const char* folder : {"C:\\Nowhere", "C:\\System", ""}) {
        PutAppData(folder);
        Write("lost");
    }
    EXPECT_EQ(world_.shell.debugLines,
              std::vector<std::string>(3, "Morpho: Unable to determine log path"));
    PutAppData(kAppData);
    Write("kept");
    EXPECT_EQ(world_.files.Bytes(kFolder + "TM20041231.log"), "09:05:07 kept\r\n");
    EXPECT_EQ(world_.registry.openKeys, 0);
}

TEST_F(LogTest, AnEditorStartsItFromItsOwnSetting) {
    const auto expectMode = [&](const char* text, int mode) {
        SaveSetting(world_.platform, "Image Morpho", kWindowSection, "Logging", text);
        StartLog(world_.program, "IM", "Image Morpho");
        EXPECT_EQ(world_.component.logMode, mode) << text;
    };
    expectMode("1", 1);
    expectMode("99999999999", 0);
    EXPECT_EQ(world_.component.logPrefix, "IM");
    world_.component.logMode = 7;
    StartLog(world_.program, "TM", "Theme Morpho");
    EXPECT_EQ(world_.component.logMode, 0);
}

TEST_F(LogTest, AFailingHandlerBecomesOneLineIfThatCanBeWritten) {
    LoggedForm form(world_.program, {"frm", "frm", {}});
    CommandButton cmdApply(form, {.name = "cmdApply", .place = {}},
                           [] { throw RunTimeError(ErrorNumber::kPathFileAccess, "No disk"); });
    world_.TurnLogOn();
    cmdApply.UserClick();
    EXPECT_THAT(world_.LogLines(), ElementsAre("Error 75 (No disk) occured in cmdApply_Click"));
    world_.component.logMode = 1;
    world_.files.FailAt(1);
    cmdApply.UserClick();  // nothing comes out
}

}  // namespace
}  // namespace morpho::test
