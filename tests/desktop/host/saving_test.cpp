#include <gtest/gtest.h>

#include <map>

#include "desktop/disk/disk_path.h"
#include "desktop/host/desktop_platform.h"
#include "desktop/temporary_folder.h"
#include "forms/headless_toolkit.h"
#include "platform/ignoring_case.h"
#include "resources/embedded_resources.h"
#include "theme_editor/frm_save_as.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

using Tree = std::map<std::string, std::string>;

// The Theme Morpho window of a person who saves themes of a copy of the sample web.
class SavingTest : public testing::Test {
  protected:
    SavingTest() {
        fs::copy(MORPHO_SOURCE_DIR "/samples/larkfell", home_ / "larkfell",
                 fs::copy_options::recursive);
        Restart();
    }
    ~SavingTest() override { CloseWindow(); }

    void Restart() {
        CloseWindow();
        desktop_.reset();
        const UserFolders folders{home_ / "", home_ / "cache/morpho", home_ / "data/morpho"};
        desktop_ =
            std::make_unique<DesktopPlatform>(DesktopUse::kBatch, folders, toolkit_, resources_);
        desktop_->OpenForSaving(home_ / "larkfell");
        component_.application = &desktop_->FrontPage();
        window_ = std::make_unique<frmThemeMorpho>(Program{desktop_->Parts(), component_});
        window_->Load();
    }
    void CloseWindow() {
        if (!window_) return;
        window_->Unload();
        window_.reset();
    }
    void Recolour(const std::string& theme, int hue) {
        const int index = window_->cmbThemeName.FindExact(theme);
        ASSERT_NE(index, kNoEntry) << theme;
        window_->cmbThemeLabel.UserSelect(index);
        window_->sldHue.UserSettle(hue);
        ASSERT_TRUE(window_->cmdApply.UserClick());
    }
    void SaveAs(const std::string& name, bool apply) {
        toolkit_.WillPlay("frmSaveAs", [=](Form& form) {
            auto& dialog = dynamic_cast<frmSaveAs&>(form);
            dialog.txtThemeName.UserEdit(name);
            dialog.txtThemeTitle.UserEdit("Title of " + name);
            dialog.chkApplyToWeb.UserSet(apply);
            if (!dialog.cmdSave.UserClick() || dialog.IsVisible()) dialog.cmdCancel.UserClick();
        });
        window_->cmdSaveAs.UserClick();
        ExpectNoMessage();
    }
    void ExpectNoMessage() {
        EXPECT_TRUE(toolkit_.Messages().empty()) << toolkit_.Messages().back().text;
    }
    Tree WebTree() const {
        Tree tree;
        for (const auto& entry : fs::recursive_directory_iterator(home_ / "larkfell")) {
            const std::string name = entry.path().lexically_relative(home_ / "larkfell").string();
            if (entry.is_regular_file()) tree[name] = home_.Read("larkfell/" + name);
        }
        return tree;
    }
    std::string WorkFile(const std::string& name) {
        return home_.Read(fs::path(desktop_->WorkFolder().Temporary() + "/Morpho/" + name)
                              .lexically_relative(home_.Path())
                              .string());
    }

    TemporaryFolder home_;
    HeadlessToolkit toolkit_;
    EmbeddedResources resources_;
    Component component_;
    std::unique_ptr<DesktopPlatform> desktop_;
    std::unique_ptr<frmThemeMorpho> window_;
};

TEST_F(SavingTest, ANewThemeIsAppliedToTheWeb) {
    Tree expected = WebTree();
    Recolour("orrery", 90);
    SaveAs("dusk", true);
    for (const char* page : {"index.htm", "news.htm", "gallery/index.htm"})
        expected[page] = ReplacedIgnoringCase(
            ReplacedIgnoringCase(expected[page], "_themes/orrery/", "_themes/dusk/"),
            "content=\"orrery 1011", "content=\"dusk 1011");
    Tree tree = WebTree();
    EXPECT_TRUE(tree["_themes/dusk/orrbnr.gif"] == WorkFile("orrery/orrbnr.gif"));
    EXPECT_FALSE(tree["_themes/dusk/orrbnr.gif"] == tree["_themes/orrery/orrbnr.gif"]);
    EXPECT_EQ(tree["_themes/dusk/orre1011.css"], tree["_themes/orrery/orre1011.css"]);
    EXPECT_NE(tree["_themes/dusk/dusk.inf"].find("title=Title of dusk"), std::string::npos);
    std::erase_if(tree, [](const auto& file) { return file.first.starts_with("_themes/dusk/"); });
    EXPECT_TRUE(tree == expected) << "the source theme, other themes and other pages as they were";
    EXPECT_TRUE(home_.Has("data/morpho/AppData/Microsoft/Themes/dusk/dusk.elm"));

    Restart();
    EXPECT_EQ(desktop_->FrontPage().ActiveWeb()->ThemeProperties(kThemeNameProperty), "dusk");
    Recolour("dusk", 200);
    toolkit_.WillAnswer(Answer::kYes);
    window_->cmdSave.UserClick();
    ASSERT_EQ(toolkit_.Messages().size(), 1U) << "the question whether to overwrite";
    EXPECT_TRUE(WebTree()["_themes/dusk/orrbnr.gif"] == WorkFile("dusk/orrbnr.gif"));
}

TEST_F(SavingTest, ANewThemeThatIsNotAppliedLeavesTheWebAsItWas) {
    const Tree before = WebTree();
    Recolour("orrery", 90);
    SaveAs("dusk", false);
    EXPECT_TRUE(WebTree() == before);
    EXPECT_TRUE(home_.Has("data/morpho/AppData/Microsoft/Themes/dusk/dusk.inf"));
    EXPECT_TRUE(home_.Has("data/morpho/AppData/Microsoft/Themes/dusk/dusk.elm"));
}

TEST_F(SavingTest, ThemesOfTheWebAreInstalledWhereOnlyThisWebFindsThem) {
    const fs::path webs = home_ / "data/morpho/webs";
    const auto installed = [&] {
        std::string files;
        for (const auto& entry : fs::recursive_directory_iterator(webs)) {
            if (entry.is_regular_file()) files += entry.path().filename().string() + " ";
        }
        return files;
    };
    EXPECT_EQ(std::distance(fs::directory_iterator(webs), {}), 1);
    EXPECT_EQ(installed().size(),
              std::string("orrery.inf orrery.elm almanac.inf almanac.elm ").size());
    fs::remove_all(home_ / "larkfell/_themes/almanac");
    Restart();
    EXPECT_EQ(std::distance(fs::directory_iterator(webs), {}), 1);
    EXPECT_EQ(installed().size(), std::string("orrery.inf orrery.elm ").size());
}

}  // namespace
}  // namespace morpho
