#include "frontpage/environment.h"

#include <gtest/gtest.h>

#include "shared/reg_key.h"
#include "support/fake_platform.h"

namespace morpho::test {

namespace {

class EnvironmentTest : public ::testing::Test {
  protected:
    void Register(const std::string& major) {
        registry_.PutString(kClassesRoot, "FrontPage.Explorer." + major + ".0\\CLSID", "", "{FP}");
        registry_.PutString(kClassesRoot, "CLSID\\{FP}\\LocalServer32", "",
                            "C:\\Office\\frontpg.exe /automation");
    }
    void PutFolders() {
        registry_.PutString(kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion",
                            "CommonFilesDir", "C:\\Common");
        PutShellFolder("AppData", "C:\\Ann");
        for (const char* office : {"9.0", "10.0", "11.0"}) {
            registry_.PutString(
                kCurrentUser,
                std::string("Software\\Microsoft\\Office\\") + office + "\\Common\\General",
                "Themes", std::string("Themes of ") + office);
        }
    }
    void PutShellFolder(const char* name, const char* folder) {
        registry_.PutString(kCurrentUser, kShellFolders, name, folder);
    }
    std::string Folder(const char* version, FrontPageFolder kind, bool shared) {
        return GetFrontPageFolder(world_.platform, version, kind, "1033", shared);
    }

    FakePlatform world_;
    FakeRegistry& registry_ = world_.registry;
};

constexpr FrontPageFolder kAllKinds[] = {FrontPageFolder::kProgram, FrontPageFolder::kBots,
                                         FrontPageFolder::kThemes, FrontPageFolder::kWebTemplates,
                                         FrontPageFolder::kPageTemplates};

}  // namespace

TEST_F(EnvironmentTest, KnowsTheFoldersOfEveryRelease) {
    for (const char* major : {"4", "5", "6", "7"})
        Register(major);
    PutFolders();
    const struct {
        const char* version;
        FrontPageFolder kind;
        const char* shared;
        const char* user;
    } cases[] = {
        {"4.0", kAllKinds[0], "C:\\Office\\", "C:\\Office\\"},
        {"6.0", kAllKinds[1], "C:\\Office\\Bots", "C:\\Office\\Bots"},
        {"7.0", kAllKinds[1], "C:\\Office\\Bots", "C:\\Office\\Bots"},
        {"4.0", kAllKinds[2], "C:\\Common\\Microsoft Shared\\Themes",
         "C:\\Ann\\Microsoft\\Themes of 9.0"},
        {"5.0.2627", kAllKinds[2], "C:\\Common\\Microsoft Shared\\Themes",
         "C:\\Ann\\Microsoft\\Themes of 10.0"},
        {"6", kAllKinds[2], "C:\\Common\\Microsoft Shared\\Themes11",
         "C:\\Ann\\Microsoft\\Themes of 11.0"},
        {"4.0", kAllKinds[3], "C:\\Office\\Templates\\1033\\Webs",
         "C:\\Ann\\Microsoft\\FrontPage\\Webs"},
        {"6.0", kAllKinds[3], "C:\\Office\\Templates\\1033\\Webs11",
         "C:\\Ann\\Microsoft\\FrontPage\\Webs"},
        {"5.0", kAllKinds[4], "C:\\Office\\Templates\\1033\\Pages",
         "C:\\Ann\\Microsoft\\FrontPage\\Pages"},
        {"6.0", kAllKinds[4], "C:\\Office\\Templates\\1033\\Pages11",
         "C:\\Ann\\Microsoft\\FrontPage\\Pages"},
        {"7.0", kAllKinds[2], "", ""},
        {"7.0", kAllKinds[3], "", ""},
        {"7.0", kAllKinds[4], "", ""},
        {"6.0", static_cast<FrontPageFolder>(5), "", ""},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(Folder(one.version, one.kind, true), one.shared) << one.version;
        EXPECT_EQ(Folder(one.version, one.kind, false), one.user) << one.version;
    }
}

TEST_F(EnvironmentTest, HasNoFolderAtAllWhenFrontPageIsNotRegistered) {
    PutFolders();
    Register("5");
    for (const FrontPageFolder kind : kAllKinds) {
        EXPECT_EQ(Folder("6.0", kind, true), "");
        EXPECT_EQ(Folder("6.0", kind, false), "");
    }
}

TEST_F(EnvironmentTest, HasNoThemesFolderWhenTheRegistryDoesNotNameIt) {
    Register("6");
    EXPECT_EQ(Folder("6.0", FrontPageFolder::kThemes, true), "");
    EXPECT_EQ(Folder("6.0", FrontPageFolder::kThemes, false), "");
    PutShellFolder("AppData", "C:\\Ann");
    EXPECT_EQ(Folder("6.0", FrontPageFolder::kThemes, false), "");
    registry_.PutString(kCurrentUser, "Software\\Microsoft\\Office\\11.0\\Common\\General",
                        "Themes", "");
    EXPECT_EQ(Folder("6.0", FrontPageFolder::kThemes, false), "");
}

TEST_F(EnvironmentTest, TheProgramFolderEndsAtTheLastSeparatorOfTheServer) {
    const auto folderOf = [&](const char* server) {
        registry_.PutString(kClassesRoot, "CLSID\\{FP}\\LocalServer32", "", server);
        return GetFrontPageProgramFolder(world_.platform, "6.0");
    };
    Register("6");
    EXPECT_EQ(folderOf("C:\\FP\\bin\\fp.exe"), "C:\\FP\\bin\\");
    EXPECT_EQ(folderOf("C:\\FP\\fp.exe -x C:\\y"), "C:\\FP\\fp.exe -x C:\\");
    EXPECT_EQ(folderOf("fp.exe"), "fp.exe");
    EXPECT_EQ(folderOf(""), "");
}

TEST_F(EnvironmentTest, LooksForTheTemporaryFolderInTurn) {
    auto& variables = world_.environment.variables;
    variables = {{"TMP", "C:\\one"}, {"TEMP", "C:\\two\\"}};
    PutShellFolder("desktop", "C:\\three");
    EXPECT_EQ(GetTempPath(world_.platform), "C:\\one\\");
    variables["TMP"] = "";
    EXPECT_EQ(GetTempPath(world_.platform), "C:\\two\\");
    variables.clear();
    EXPECT_EQ(GetTempPath(world_.platform), "C:\\three\\");
    PutShellFolder("desktop", "");
    EXPECT_EQ(GetTempPath(world_.platform), "C:\\Program Files\\Morpho\\");
}

TEST_F(EnvironmentTest, OnlyRelease6HasACacheOfItsOwn) {
    EXPECT_EQ(GetCachePath(world_.platform, "6.0"), "");
    PutShellFolder("Cache", "C:\\Cache");
    EXPECT_EQ(GetCachePath(world_.platform, "6.0"), "C:\\Cache");
    EXPECT_EQ(GetCachePath(world_.platform, "5.0"), "C:\\Temp\\");
    EXPECT_EQ(GetCachePath(world_.platform, "6"), "C:\\Temp\\");
}

TEST_F(EnvironmentTest, DescribesTheOperatingSystem) {
    const auto expectInfo = [&](const OsVersion& os, const char* info) {
        world_.environment.os = os;
        EXPECT_EQ(GetOSInfo(world_.platform), info);
    };
    expectInfo({2, 5, 1, 2600, "Service Pack 2"}, "Win2K ver. 5.1 Build: 2600 Service Pack 2");
    expectInfo({2, 4, 0, 1381, ""}, "WinNT ver. 4.0 Build: 1381");
    expectInfo({1, 4, 10, 0x040A08AE, " A "}, "Win98 ver. 4.10 2222  A");
    expectInfo({1, 4, 0, 0x040003B6, std::string("B\0x", 3)}, "Win95 ver. 4.0 950 B");
    expectInfo({0, 3, 11, 1, "x"}, "");
}

TEST_F(EnvironmentTest, DescribesFrontPageAndThisComponent) {
    world_.application.version = "5.0.2627";
    world_.application.languages = {{LanguageUse::kExecutionMode, 1},
                                    {LanguageUse::kUserInterface, 2},
                                    {LanguageUse::kPreviousUserInterface, 3},
                                    {LanguageUse::kInstall, 4},
                                    {LanguageUse::kHelp, 5}};
    EXPECT_EQ(GetFrontPageInfo(world_.program),
              "FP ver: 5.0.2627 Lang(exe,UI,UIPrev,Inst): 1,2,3,4");
    EXPECT_EQ(GetVersionText(world_.platform, true), "1.04.17 ");
    EXPECT_EQ(GetVersionText(world_.platform, false), "1.04");
    world_.environment.version = {"Morpho", 2, 11, 0, "beta"};
    EXPECT_EQ(GetVersionText(world_.platform, true), "2.11.0 beta");
    EXPECT_EQ(EditorProgId("5.0.2627"), "FrontPage.Editor.5.0.2627");

    world_.component.application = nullptr;
    EXPECT_THROW(GetFrontPageInfo(world_.program), RunTimeError);
}

}  // namespace morpho::test
