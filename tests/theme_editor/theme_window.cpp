#include "theme_editor/theme_window.h"

#include <map>

#include "image_editor/frm_jpeg_qf.h"
#include "resources/resource_ids.h"
#include "theme_editor/frm_prompt_duplicate.h"

namespace morpho::test {
namespace {

constexpr const char* kSettings = "Software\\VB and VBA Program Settings\\Theme Morpho\\Window";
constexpr const char* kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
const std::string kUnpacked = "C:\\Cache\\FrontPageTempDir\\mstheme\\";

}  // namespace

void RecordingBrowser::Write(Aspects changed) {
    if ((changed & aspect::kNavigate) != 0) asked.emplace_back("navigate");
    if ((changed & aspect::kReload) != 0) asked.emplace_back("refresh");
    if ((changed & aspect::kReloadCompletely) != 0) asked.emplace_back("refresh completely");
}

ThemeWindow::ThemeWindow() {
    world_.registry.PutString(kCurrentUser, kShellFolders, "Cache", "C:\\Cache");
    PutSetting("Logging", "2");
    PutSetting("Splash", "0");
    PutSetting("QuickReference", "0");
    world_.resources.data[{std::string(kTemplateResource), kPreviewTemplate}] =
        "<#active/list-image-1#><#Active/Nav-Banner-Image#><#normal/nav-banner-image#>"
        "<#global/top-bar-button#>\xE9" +
        std::string(2, '\0');
    world_.application.web->themeOfWeb = "blends";
    PutTheme("blends", "Blends",
             {{"active/nav-banner-image", "banner.gif"},
              {"active/navbutton-vert-normal", "button.gif"},
              {"active/list-image-1", "bullet.gif"},
              {"normal/nav-banner-image", "Banner.GIF"},
              {"normal/list-image-1", "nbullet.gif"},
              {"normal/separator-image", "line.jpg"},
              {"global/background-image", "back.JPEG"}});
    PutTheme("citrus", "Citrus Punch", {{"active/list-image-1", "dot.gif"}});
    world_.toolkit.WillPlay("frmPromptDuplicate", [this](Form& form) {
        auto& notice = dynamic_cast<frmPromptDuplicate&>(form);
        notices_.push_back(notice.Caption() + ": " + notice.lblMessage.Caption());
        notice.chkDontShowAgain.UserSet(tickDontShow_);
        notice.btnOK.UserClick();
    });
    world_.toolkit.WillPlay("frmJPEGQF", [this](Form& form) {
        ++prompts_;
        auto& prompt = dynamic_cast<frmJPEGQF&>(form);
        prompt.vsQF.UserSet(60);
        prompt.btnOK.UserClick();
    });
}

void ThemeWindow::TearDown() {
    EXPECT_THAT(world_.toolkit.Unscripted(), IsEmpty());
}

void ThemeWindow::PutTheme(const std::string& name, const std::string& label,
                           const Pictures& pictures) {
    std::map<std::string, std::string> sheets;
    for (const CatalogueElement& element : kCatalogue) {
        std::string& css = sheets[std::string(element.styleSheet)];
        for (const auto& [key, file] : pictures) {
            if (key != element.key) continue;
            css += std::string(element.selector) + " { " + std::string(element.Attribute()) +
                   ": url(" + file + "); }\r\n";
            if (!world_.files.HasFile(Original(file, name)))
                world_.files.PutFile(Original(file, name), name + "/" + file);
        }
    }
    for (const auto& [sheet, css] : sheets)
        world_.files.PutFile(Original(sheet, name), css);
    world_.application.web->themes.push_back({name, label});
}

std::string ThemeWindow::Original(const std::string& file, const std::string& theme) {
    return kUnpacked + theme + "\\" + file;
}

std::string ThemeWindow::Working(const std::string& file, const std::string& theme) {
    return "C:\\Temp\\Morpho\\" + theme + "\\" + file;
}

frmThemeMorpho& ThemeWindow::Open() {
    window_.emplace(world_.program);
    window_->wbbImagePreview.Attach(&browser_);
    window_->Load();
    return *window_;
}

void ThemeWindow::Tick(const std::vector<int>& rows) {
    window_->cmdSelectNone.UserClick();
    for (const int row : rows)
        window_->lstImageNames.UserCheck(row, true);
    Forget();
}

std::vector<int> ThemeWindow::Ticked() const {
    std::vector<int> rows;
    for (int row = 0; row < window_->lstImageNames.ListCount(); ++row) {
        if (window_->lstImageNames.Selected(row)) rows.push_back(row);
    }
    return rows;
}

Lines ThemeWindow::Listed() const {
    Lines listed;
    for (int row = 0; row < window_->lstImageNames.ListCount(); ++row)
        listed.push_back(window_->lstImageNames.List(row) + "=" + window_->lstGifNames.List(row));
    return listed;
}

void ThemeWindow::Forget() {
    world_.shell.debugLines.clear();
    world_.colorizers.calls.clear();
    browser_.asked.clear();
    notices_.clear();
    prompts_ = 0;
}

void ThemeWindow::ExpectPicture(const std::string& file, const std::string& bytes) const {
    EXPECT_EQ(world_.files.Bytes(Working(file)), bytes);
}

void ThemeWindow::ExpectMessage(std::size_t count, const std::string& text, int flags) const {
    EXPECT_EQ(world_.toolkit.Messages().size(), count);
    ExpectNthMessage(count, text, flags);
}

void ThemeWindow::ExpectNthMessage(std::size_t nth, const std::string& text, int flags) const {
    ASSERT_GE(world_.toolkit.Messages().size(), nth);
    const HeadlessToolkit::Message& message = world_.toolkit.Messages()[nth - 1];
    EXPECT_EQ(message.text, text);
    EXPECT_EQ(message.flags, flags);
    EXPECT_EQ(message.title, "Theme Morpho");
}

void ThemeWindow::PutSetting(const std::string& key, const std::string& value) {
    world_.registry.PutString(kCurrentUser, kSettings, key, value);
}

std::string ThemeWindow::Setting(const std::string& key) const {
    return world_.registry.Text(kCurrentUser, kSettings, key).value_or("(none)");
}

}  // namespace morpho::test
