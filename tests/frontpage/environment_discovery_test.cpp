#include "frontpage/environment_discovery.h"

#include <gtest/gtest.h>

#include "shared/reg_key.h"
#include "support/fake_platform.h"

namespace morpho::test {
namespace {

class EnvironmentTest : public ::testing::Test {
  protected:
    void Register(const std::string& major) {
        registry_.Put(kClassesRoot, "FrontPage.Explorer." + major + ".0\\CLSID", "", "{FP}");
        PutServer("C:\\Office\\frontpg.exe /automation");
    }
    void PutServer(const char* server) {
        registry_.Put(kClassesRoot, "CLSID\\{FP}\\LocalServer32", "", server);
    }
    void PutFolders() {
        registry_.Put(kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion",
                      "CommonFilesDir", "C:\\Common");
        PutShellFolder("AppData", "C:\\Ann");
        for (const char* office : {"9.0", "10.0", "11.0"})
            PutUserThemes(office, std::string("Themes of ") + office);
    }
    void PutShellFolder(const char* name, const char* folder) {
        registry_.Put(kCurrentUser, std::string(kShellFolders), name, folder);
    }
    void PutUserThemes(const std::string& office, const std::string& folder) {
        registry_.Put(kCurrentUser, "Software\\Microsoft\\Office\\" + office + "\\Common\\General",
                      "Themes", folder);
    }
    void ExpectFolders(const char* version, FrontPageFolder kind, const std::string& shared,
                       const std::string& user) {
        for (const bool isShared : {true, false}) {
            EXPECT_EQ(GetFrontPageFolder(world_.platform, version, kind, "1033", isShared),
                      isShared ? shared : user)
                << version;
        }
    }

    FakePlatform world_;
    FakeRegistry& registry_ = world_.registry;
};

using enum FrontPageFolder;

TEST_F(EnvironmentTest, KnowsTheFoldersOfEveryRelease) {
    for (const char* major : {"4", "5", "6", "7"})
        Register(major);
    PutFolders();
    const std::string themes = "C:\\Common\\Microsoft Shared\\Themes";
    const std::string templates = "C:\\Office\\Templates\\1033\\";
    const std::string user = "C:\\Ann\\Microsoft\\";
    ExpectFolders("4.0", kProgram, "C:\\Office\\", "C:\\Office\\");
    ExpectFolders("7.0", kBots, "C:\\Office\\Bots", "C:\\Office\\Bots");
    ExpectFolders("4.0", kThemes, themes, user + "Themes of 9.0");
    ExpectFolders("5.0.2627", kThemes, themes, user + "Themes of 10.0");
    ExpectFolders("6", kThemes, themes + "11", user + "Themes of 11.0");
    ExpectFolders("4.0", kWebTemplates, templates + "Webs", user + "FrontPage\\Webs");
    ExpectFolders("6.0", kWebTemplates, templates + "Webs11", user + "FrontPage\\Webs");
    ExpectFolders("5.0", kPageTemplates, templates + "Pages", user + "FrontPage\\Pages");
    ExpectFolders("6.0", kPageTemplates, templates + "Pages11", user + "FrontPage\\Pages");
    for (const FrontPageFolder kind : {kThemes, kWebTemplates, kPageTemplates})
        ExpectFolders("7.0", kind, "", "");
    ExpectFolders("6.0", static_cast<FrontPageFolder>(5), "", "");
    for (const FrontPageFolder kind : {kProgram, kBots, kThemes, kWebTemplates, kPageTemplates})
        ExpectFolders("8.0", kind, "", "");  // not registered
}

TEST_F(EnvironmentTest, HasNoThemesFolderWhenTheRegistryDoesNotNameIt) {
    Register("6");
    ExpectFolders("6.0", kThemes, "", "");
    PutShellFolder("AppData", "C:\\Ann");
    ExpectFolders("6.0", kThemes, "", "");
    PutUserThemes("11.0", "");
    ExpectFolders("6.0", kThemes, "", "");
}

TEST_F(EnvironmentTest, TheProgramFolderEndsAtTheLastSeparatorOfTheServer) {
    Register("6");
    const auto expectFolder = [&](const char* server, const char* folder) {
        PutServer(server);
        ExpectFolders("6.0", kProgram, folder, folder);
    };
    expectFolder("C:\\FP\\fp.exe -x C:\\y", "C:\\FP\\fp.exe -x C:\\");
    expectFolder("fp.exe", "fp.exe");
    expectFolder("", "");
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
    // Only release 6 has a cache of its own.
    PutShellFolder("Cache", "C:\\Cache");
    EXPECT_EQ(GetCachePath(world_.platform, "6.0"), "C:\\Cache");
    EXPECT_EQ(GetCachePath(world_.platform, "6"), "C:\\Program Files\\Morpho\\");
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
    expectInfo({3, 6, 1, 0, "", "Linux 6.1.0"}, "Linux 6.1.0");
}

TEST_F(EnvironmentTest, DescribesFrontPageAndThisComponent) {
    world_.application.version = "5.0.2627";
    world_.application.languages = {{LanguageUse::kExecutionMode, 1},
                                    {LanguageUse::kUserInterface, 2},
                                    {LanguageUse::kPreviousUserInterface, 3},
                                    {LanguageUse::kInstall, 4}};
    EXPECT_EQ(GetFrontPageInfo(world_.program),
              "FP ver: 5.0.2627 Lang(exe,UI,UIPrev,Inst): 1,2,3,4");
    world_.component.application = nullptr;
    EXPECT_THROW(GetFrontPageInfo(world_.program), RunTimeError);
    world_.environment.version = {"Morpho", 2, 1, 0, "beta"};
    EXPECT_EQ(GetVersionText(world_.platform, true), "2.01.0 beta");
    EXPECT_EQ(GetVersionText(world_.platform, false), "2.01");
}

}  // namespace
}  // namespace morpho::test
