#include "desktop/host/desktop_platform.h"

#include <gtest/gtest.h>

#include "desktop/disk/disk_path.h"
#include "desktop/temporary_folder.h"
#include "forms/headless_toolkit.h"
#include "frontpage/environment.h"
#include "resources/embedded_resources.h"
#include "shared/settings.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho {
namespace {

class DesktopPlatformTest : public testing::Test {
  protected:
    std::unique_ptr<DesktopPlatform> Start(DesktopUse use) {
        const UserFolders folders{home_ / "", home_ / "cache/morpho", home_ / "data/morpho"};
        return std::make_unique<DesktopPlatform>(use, folders, toolkit_, resources_);
    }

    TemporaryFolder home_;
    HeadlessToolkit toolkit_;
    EmbeddedResources resources_;
};

TEST_F(DesktopPlatformTest, TheEditorsFindTheirFolders) {
    const auto desktop = Start(DesktopUse::kWindows);
    const Platform& platform = desktop->Parts();
    const std::string version = desktop->FrontPage().Version();
    const auto themes = [&](bool shared) {
        return GetFrontPageFolder(platform, version, FrontPageFolder::kThemes, "1033", shared);
    };
    const std::string data = ToWindowsPath(home_ / "data/morpho");
    EXPECT_EQ(GetTempPath(platform), ToWindowsPath(desktop->WorkFolder().Temporary()) + "\\");
    EXPECT_EQ(GetCachePath(platform, version), ToWindowsPath(desktop->WorkFolder().Cache()));
    EXPECT_EQ(themes(true), data + "\\CommonFiles\\Microsoft Shared\\Themes11");
    EXPECT_EQ(themes(false), data + "\\AppData\\Microsoft\\Themes");
    EXPECT_TRUE(home_.Has("data/morpho/AppData"));
}

TEST_F(DesktopPlatformTest, WindowsKeepSettingsAndBatchesForgetThem) {
    const auto splash = [](DesktopPlatform& desktop) {
        return GetSetting(desktop.Parts(), "Theme Morpho", kWindowSection, "Splash", "1");
    };
    const auto save = [](DesktopPlatform& desktop, const char* value) {
        SaveSetting(desktop.Parts(), "Theme Morpho", kWindowSection, "Splash", value);
    };
    EXPECT_EQ(splash(*Start(DesktopUse::kBatch)), "0");
    save(*Start(DesktopUse::kBatch), "2");
    EXPECT_FALSE(home_.Has("data"));
    EXPECT_EQ(splash(*Start(DesktopUse::kWindows)), "1");
    save(*Start(DesktopUse::kWindows), "2");
    EXPECT_EQ(splash(*Start(DesktopUse::kWindows)), "2");
}

TEST_F(DesktopPlatformTest, AThemeOfAWebOnDiskIsLoadedAndRecoloured) {
    const auto desktop = Start(DesktopUse::kBatch);
    desktop->FrontPage().Open(MORPHO_SOURCE_DIR "/samples/larkfell");
    EXPECT_EQ(desktop->FrontPage().ActiveWeb()->ThemeProperties(kThemeNameProperty), "orrery");
    Component component;
    component.application = &desktop->FrontPage();
    const Program program{desktop->Parts(), component};
    frmThemeMorpho window(program);
    window.Load();
    ASSERT_EQ(window.cmbThemeName.ListCount(), 2);
    window.cmbThemeLabel.UserSelect(window.cmbThemeName.FindExact("orrery"));
    EXPECT_EQ(window.LoadFailure(), "");
    EXPECT_EQ(window.lstImageNames.ListCount(), 38);

    const std::string picture = "orrery\\orrbnr.gif";
    FileSystem& files = desktop->Parts().files;
    const std::string copy = GetTempPath(desktop->Parts()) + "Morpho\\" + picture;
    const std::string original = files.ReadFile(copy);
    window.sldHue.UserSettle(90);
    EXPECT_TRUE(window.cmdApply.UserClick());
    EXPECT_NE(files.ReadFile(copy), original);
    toolkit_.WillAnswer(Answer::kNo);
    window.Unload();
}

}  // namespace
}  // namespace morpho
