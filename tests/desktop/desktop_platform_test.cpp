#include "desktop/desktop_platform.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "desktop/this_system.h"
#include "forms/headless_toolkit.h"
#include "frontpage/environment_discovery.h"
#include "resources/embedded_resources.h"
#include "shared/memory_clipboard.h"
#include "shared/settings.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

class DesktopPlatformTest : public testing::Test {
  protected:
    std::unique_ptr<DesktopPlatform> Start(DesktopUse use) {
        const ProgramFolders folders{.desktop = home_.Path(),
                                     .appData = home_.At("data/morpho/AppData"),
                                     .data = home_.At("data/morpho"),
                                     .cache = home_.At("cache/morpho")};
        return std::make_unique<DesktopPlatform>(use, system_, folders, toolkit_, resources_,
                                                 clipboard_);
    }

    TemporaryFolder home_;
    ThisSystem system_;
    HeadlessToolkit toolkit_;
    EmbeddedResources resources_;
    MemoryClipboard clipboard_;
};

TEST_F(DesktopPlatformTest, WindowsKeepSettingsAndBatchesForgetThem) {
    const auto expectLater = [&](DesktopUse use, const char* saved, const char* later) {
        SaveSetting(Start(use)->Parts(), "Morpho Test", kWindowSection, "Splash", saved);
        EXPECT_EQ(GetSetting(Start(use)->Parts(), "Morpho Test", kWindowSection, "Splash", "none"),
                  later);
    };
    expectLater(DesktopUse::kBatch, "1", "none");
    EXPECT_FALSE(home_.Has("data"));
    expectLater(DesktopUse::kWindows, "1", "1");
    expectLater(DesktopUse::kWindows, "0", "0");
}

TEST_F(DesktopPlatformTest, ThemesOfAWebAreInstalledWhereOnlyThisWebFindsThem) {
    for (const char* const web : {"web", "other"})
        std::filesystem::copy(MORPHO_SOURCE_DIR "/samples/larkfell", home_.At(web),
                              std::filesystem::copy_options::recursive);
    const auto installed = [this](const char* web) {
        const auto desktop = Start(DesktopUse::kBatch);
        desktop->OpenForSaving(home_.At(web));
        const std::string folder =
            GetFrontPageFolder(desktop->Parts(), desktop->FrontPage().Version(),
                               FrontPageFolder::kThemes, "1033", true);
        std::string names;
        for (const FileEntry& theme : desktop->Parts().files.List(folder))
            names += theme.name + " ";
        return names;
    };
    EXPECT_EQ(installed("web"), "almanac orrery ");
    std::filesystem::remove_all(home_.At("web/_themes/almanac"));
    EXPECT_EQ(installed("web"), "orrery ");
    EXPECT_EQ(installed("other"), "almanac orrery ");
    const Tree files = home_.Below("data/morpho/webs");
    EXPECT_EQ(std::count_if(files.begin(), files.end(),
                            [](const auto& file) { return file.first.ends_with(".elm"); }),
              3);
}

}  // namespace
}  // namespace morpho
