#include "shared/log.h"

#include <gtest/gtest.h>

#include "forms/controls.h"
#include "shared/logged_form.h"
#include "shared/reg_key.h"
#include "shared/settings.h"
#include "support/fake_platform.h"

namespace morpho::test {

namespace {

constexpr const char* kAppData = "C:\\Users\\Ann\\AppData";
const std::string kFolder = std::string(kAppData) + "\\Norvale Software\\Webtrove\\";

class LogTest : public ::testing::Test {
  protected:
    LogTest() { world_.component.logPrefix = "TM"; }

    void PutAppData(const std::string& value = kAppData) {
        world_.files.PutFolder(kAppData);
        world_.registry.PutString(kCurrentUser, kShellFolders, "AppData", value);
    }
    void Write(const char* text) { WriteLog(world_.program, text); }

    FakePlatform world_;
};

}  // namespace

TEST_F(LogTest, IsSilentAndLooksNowhereWhenOff) {
    PutAppData();
    for (const int mode : {0, 3, -1}) {
        world_.component.logMode = mode;
        Write("TM started");
    }
    EXPECT_EQ(world_.registry.Calls(), 0);
    EXPECT_TRUE(world_.files.Changes().empty());
    EXPECT_TRUE(world_.shell.debugLines.empty());
}

TEST_F(LogTest, SendsLinesToTheDebuggerWithoutLookingForAFolder) {
    world_.component.logMode = 2;
    Write("TM started");
    EXPECT_EQ(world_.shell.debugLines, std::vector<std::string>{"09:05:07 TM started"});
    EXPECT_EQ(world_.registry.Calls(), 0);
}

TEST_F(LogTest, AppendsToTheFileOfTheDayAndCreatesItsFolderOnce) {
    PutAppData();
    world_.component.logMode = 1;
    world_.clock.now = {2004, 12, 31, 23, 59, 59};
    Write("Loading caf\xC3\xA9...");
    world_.clock.now = {2005, 1, 1, 0, 0, 0};
    Write("one");
    world_.component.logPrefix = "IM";
    Write("two");
    Write("three");

    EXPECT_EQ(world_.files.Bytes(kFolder + "TM20041231.log"), "23:59:59 Loading caf\xE9...\r\n");
    EXPECT_EQ(world_.files.Bytes(kFolder + "TM20050101.log"), "00:00:00 one\r\n");
    EXPECT_EQ(world_.files.Bytes(kFolder + "IM20050101.log"), "00:00:00 two\r\n00:00:00 three\r\n");
    EXPECT_EQ(world_.files.Changes().size(), 2U + 4U);  // two folders, four lines
}

TEST_F(LogTest, FindsItsFolderWithOneSeparatorAndOpensTheFileWithTwo) {
    PutAppData(std::string(kAppData) + "\\");
    world_.files.PutFolder(std::string(kAppData) + "\\norvale software");
    EXPECT_EQ(GetLogFolder(world_.program), kFolder);
    EXPECT_EQ(world_.files.Changes().size(), 1U);  // what stands there is left as it is

    class OpenedPaths : public FakeFileSystem {
      public:
        std::string last;
        void AppendFile(std::string_view path, std::string_view) override { last = path; }
    } files;
    Platform& p = world_.platform;
    Platform platform{p.registry,    files,       p.profileFiles, p.codePage, p.shell,     p.clock,
                      p.environment, p.resources, p.colorizers,   p.toolkit,  p.automation};
    world_.component.logMode = 1;
    world_.component.logFolder = kFolder;
    WriteLog({platform, world_.component}, "x");
    EXPECT_EQ(files.last, kFolder + "\\TM20041231.log");
}

TEST_F(LogTest, TellsTheDebuggerEachTimeThatItHasNoFolderAndTriesAgain) {
    world_.component.logMode = 1;
    Write("lost");
    world_.registry.PutString(kCurrentUser, kShellFolders, "AppData", "C:\\Nowhere");
    Write("lost");
    world_.registry.PutString(kCurrentUser, kShellFolders, "AppData", "");
    Write("lost");
    EXPECT_EQ(world_.shell.debugLines,
              std::vector<std::string>(3, "Morpho: Unable to determine log path"));

    PutAppData();
    Write("kept");
    EXPECT_EQ(world_.files.Bytes(kFolder + "TM20041231.log"), "09:05:07 kept\r\n");
    EXPECT_EQ(world_.registry.OpenKeys(), 0);
}

TEST_F(LogTest, AFileThatCannotBeWrittenIsTheCallersError) {
    PutAppData();
    world_.component.logMode = 1;
    world_.files.FailOn(kFolder + "TM20041231.log");
    EXPECT_THROW(Write("x"), RunTimeError);
}

TEST_F(LogTest, AnEditorStartsItFromItsOwnSetting) {
    const struct {
        const char* text;
        int mode;
    } cases[] = {{"1", 1}, {" 2 lines", 2}, {"on", 0}, {"", 0}, {"0.6", 1}, {"99999999999", 0}};
    for (const auto& one : cases) {
        SaveSetting(world_.platform, "Image Morpho", kWindowSection, "Logging", one.text);
        world_.component.logMode = 7;
        StartLog(world_.program, "IM", "Image Morpho");
        EXPECT_EQ(world_.component.logMode, one.mode) << one.text;
    }
    StartLog(world_.program, "TM", "Theme Morpho");
    EXPECT_EQ(world_.component.logMode, 0);
    EXPECT_EQ(world_.component.logPrefix, "TM");
}

namespace {

class FailingForm : public LoggedForm {
  public:
    explicit FailingForm(const Program& program) : LoggedForm(program, {"frm", "frm", {}}) {}
    int told = 0;
    CommandButton cmdApply{*this, {.name = "cmdApply", .place = {}}, [] {
                               throw RunTimeError(ErrorNumber::kPathFileAccess, "No disk");
                           }};

  protected:
    void TellError(std::string_view, const RunTimeError&) override { ++told; }
};

}  // namespace

TEST_F(LogTest, AFailingHandlerBecomesOneLineAndTheHookIsCalled) {
    world_.TurnLogOn();
    FailingForm form(world_.program);
    form.cmdApply.UserClick();
    EXPECT_EQ(world_.LogLines(),
              std::vector<std::string>{"Error 75 (No disk) occured in cmdApply_Click"});

    PutAppData();
    world_.component.logMode = 1;
    world_.files.FailAt(1);
    form.cmdApply.UserClick();  // the log fails, too, and nothing comes out
    EXPECT_EQ(form.told, 2);
}

}  // namespace morpho::test
