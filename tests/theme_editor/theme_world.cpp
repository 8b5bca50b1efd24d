#include "theme_editor/theme_world.h"

#include "image_editor/frm_jpeg_qf.h"
#include "resources/resource_ids.h"
#include "shared/reg_key.h"
#include "theme_editor/frm_prompt_duplicate.h"

namespace morpho::test {
namespace {

constexpr const char* kSettings = "Software\\VB and VBA Program Settings\\Theme Morpho\\Window";

std::string Inf(const std::string& title, const std::string& readOnly) {
    return "[info]\r\ntitle=" + title + "\r\nreadonly=" + readOnly +
           "\r\nformat=2\r\n[titles]\r\n1031=Alt\r\n1033=" + title + "\r\n";
}

template <typename... Kinds>
bool IsOneOf(const Control& control) {
    return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

}  // namespace

void Onlooker::Write(Aspects changed) {
    if (changed == aspect::kCaption) seen.push_back(control_.Caption());
    if (changed == aspect::kAddress) seen.emplace_back("navigate");
    if (changed == aspect::kReload) seen.emplace_back("refresh");
    if (changed == aspect::kReloadCompletely) seen.emplace_back("refresh completely");
}

ThemeWorld::ThemeWorld() {
    PutShellFolder("Cache", "C:\\Cache");
    PutSetting("Logging", "2");
    PutSetting("Splash", "0");
    PutSetting("QuickReference", "0");
    world.toolkit.WillPlay("frmPromptDuplicate", [this](Form& form) {
        auto& notice = dynamic_cast<frmPromptDuplicate&>(form);
        notices.push_back(notice.Caption() + ": " + notice.lblMessage.Caption());
        notice.chkDontShowAgain.UserSet(tickDontShow);
        notice.btnOK.UserClick();
    });
    world.toolkit.WillPlay("frmJPEGQF", [this](Form& form) {
        ++prompts;
        auto& prompt = dynamic_cast<frmJPEGQF&>(form);
        prompt.vsQF.UserSet(60);
        prompt.btnOK.UserClick();
    });
}

void ThemeWorld::PutTheme(const std::string& name, const std::string& label,
                          const Pictures& pictures) {
    const std::string folder = kHostThemes + name;
    std::map<std::string, std::string> sheets;
    for (const CatalogueElement& element : kCatalogue) {
        std::string& css = sheets[std::string(element.styleSheet)];
        for (const auto& [key, file] : pictures) {
            if (key != element.key) continue;
            css += std::string(element.selector) + " { " + std::string(element.Attribute()) +
                   ": url(" + file + "); }\r\n";
            if (!world.files.HasFile(folder + '\\' + file))
                world.files.PutFile(folder + '\\' + file, name + '/' + file);
        }
    }
    for (const auto& [sheet, css] : sheets)
        world.files.PutFile(folder + sheet, css);
    world.application.web->themes.push_back({name, label});
}

void ThemeWorld::PutSetting(const std::string& key, const std::string& value) {
    world.registry.Put(kCurrentUser, kSettings, key, value);
}

std::string ThemeWorld::Setting(const std::string& key) const {
    return world.registry.UserText(kSettings, key).value_or("(none)");
}

void ThemeWorld::PutShellFolder(const std::string& name, const std::string& path) {
    world.registry.Put(kCurrentUser, std::string(kShellFolders), name, path);
}

frmThemeMorpho& ThemeWorld::Open() {
    browser.reset();
    window.emplace(world.program);
    browser.emplace(window->wbbImagePreview);
    window->Load();
    return *window;
}

void ThemeWorld::Forget() {
    world.shell.debugLines.clear();
    world.colorizers.calls.clear();
    browser->seen.clear();
    notices.clear();
    prompts = 0;
}

void ThemeWorld::ExpectMessage(std::size_t count, const std::string& text, int flags) const {
    ASSERT_EQ(world.toolkit.Messages().size(), count);
    const HeadlessToolkit::Message& message = world.toolkit.Messages().back();
    EXPECT_EQ(message.text, text);
    EXPECT_EQ(message.flags, flags);
    EXPECT_EQ(message.title, "Theme Morpho");
}

ThemeWindow::ThemeWindow() {
    world.application.web->themeOfWeb = "blends";
    PutTheme("blends", "Blends",
             {{"active/nav-banner-image", "banner.gif"},
              {"active/navbutton-vert-normal", "button.gif"},
              {"active/list-image-1", "bullet.gif"},
              {"normal/nav-banner-image", "Banner.GIF"},
              {"normal/list-image-1", "nbullet.gif"},
              {"normal/separator-image", "line.jpg"},
              {"global/background-image", "back.JPEG"}});
    PutTheme("citrus", "Citrus Punch", {{"active/list-image-1", "dot.gif"}});
}

void ThemeWindow::Tick(const std::vector<int>& rows) {
    window->cmdSelectNone.UserClick();
    for (const int row : rows)
        window->lstImageNames.UserCheck(row, true);
    Forget();
}

std::vector<int> ThemeWindow::Ticked() const {
    std::vector<int> rows;
    for (int row = 0; row < window->lstImageNames.ListCount(); ++row) {
        if (window->lstImageNames.Selected(row)) rows.push_back(row);
    }
    return rows;
}

Lines ThemeWindow::Listed() const {
    Lines listed;
    for (int row = 0; row < window->lstImageNames.ListCount(); ++row)
        listed.push_back(window->lstImageNames.List(row) + "=" + window->lstGifNames.List(row));
    return listed;
}

void ThemeWindow::ExpectPicture(const std::string& file, const std::string& bytes) const {
    EXPECT_EQ(world.files.Bytes(kWorkRoot + "blends\\" + file), bytes);
}

std::vector<const Control*> OperatedControls(const Container& container) {
    std::vector<const Control*> operated;
    for (const Control* control : container.Controls()) {
        if (!control->Visible()) continue;
        const auto* label = dynamic_cast<const Label*>(control);
        if (const auto* frame = dynamic_cast<const Frame*>(control)) {
            const auto inside = OperatedControls(*frame);
            operated.insert(operated.end(), inside.begin(), inside.end());
        } else if (label != nullptr ? label->IsLink() : !IsOneOf<PictureBox, Timer>(*control)) {
            operated.push_back(control);
        }
    }
    return operated;
}

Lines ThemeWindow::Operable() const {
    Lines operable;
    for (const Control* control : OperatedControls(*window)) {
        if (control->IsOperable()) operable.push_back(control->Name());
    }
    return operable;
}

SaveWorld::SaveWorld() {
    FakeRegistry& registry = world.registry;
    registry.Put(kClassesRoot, "FrontPage.Explorer.6.0\\CLSID", "", "{FP}");
    registry.Put(kClassesRoot, "CLSID\\{FP}\\LocalServer32", "", "C:\\Office\\frontpg.exe");
    registry.Put(kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion", "CommonFilesDir",
                 "C:\\Common");
    registry.Put(kCurrentUser, "Software\\Microsoft\\Office\\11.0\\Common\\General", "Themes",
                 "Themes");
    PutShellFolder("AppData", "C:\\Ann");
    PutTheme("coast", "Coast",
             {{"active/list-image-1", "wave.gif"},
              {"active/list-image-2", "shell.gif"},
              {"global/background-image", "back.gif"}});
    InstallTheme(kGlobalThemes, "coast", "Coast");
    InstallTheme(kGlobalThemes, "moor", "Moor");
    InstallTheme(kUserThemes, "dunes", "Dunes");
    world.files.PutFolder(kWebThemes);
    world.files.CopyFolder(kHostThemes + "coast", kWebThemes + "coast");
    world.files.PutFile(kHostThemes + "coast\\coast.inf", Inf("Coast", "false"));
    world.files.PutFile("C:\\Web\\index.htm", "theme=coast");
    world.application.web->themeOfWeb = "coast";
    world.application.web->showsHiddenPages = "true";
    world.application.web->pages = {{"other.htm", "moor"}, {"index.htm", "coast"}};
}

void SaveWorld::OpenAndRecolour() {
    Open();
    window->sldHue.UserSettle(40);
    window->cmdApply.UserClick();
    Forget();
}

void SaveWorld::PersonSavesAs(const std::string& name, const std::string& title, bool apply) {
    world.toolkit.WillPlay("frmSaveAs", [=, this](Form& form) {
        auto& dialog = dynamic_cast<frmSaveAs&>(form);
        saveAsPrompts.push_back(dialog.lblMessage.Caption());
        dialog.txtThemeName.UserEdit(name);
        dialog.txtThemeTitle.UserEdit(title);
        dialog.chkApplyToWeb.UserSet(apply);
        if (!dialog.cmdSave.UserClick() || dialog.IsVisible()) dialog.cmdCancel.UserClick();
    });
}

void SaveWorld::InstallTheme(const std::string& themesFolder, const std::string& name,
                             const std::string& title, const std::string& readOnly) {
    const std::string path = themesFolder + name + '\\' + name;
    world.files.PutFile(path + ".inf", Inf(title, readOnly));
    std::vector<std::pair<std::string, std::string>> members;
    for (const std::string& file : world.files.FilesBelow(kHostThemes + "coast"))
        members.emplace_back(file, world.files.Bytes(kHostThemes + "coast\\" + file));
    world.files.PutFile(path + ".elm", Package(members));
}

std::map<std::string, std::string> SaveWorld::Tree() const {
    std::map<std::string, std::string> tree;
    for (const std::string& file : world.files.FilesBelow("C:")) {
        if (!file.starts_with("temp\\")) tree[file] = world.files.Bytes("C:\\" + file);
    }
    return tree;
}

bool SaveWorld::IsUsable() const {
    return window->frameMenu.Enabled() && window->frameImageList.Enabled() &&
           window->framePreview.Enabled() && window->frameProcess.Enabled() &&
           window->frameImageListControl.Enabled() && window->lblStatus.Caption().empty() &&
           window->Pointer() == MousePointer::kDefault && window->Caption() == "Theme Morpho";
}

std::string Package(const std::vector<std::pair<std::string, std::string>>& members) {
    std::string bytes = "MSTheme 1\n" + std::to_string(members.size()) + "\n";
    for (const auto& [name, contents] : members)
        bytes += name + ',' + std::to_string(contents.size()) + '\n';
    for (const auto& [name, contents] : members)
        bytes += "<==MS-Theme==>" + contents;
    return bytes;
}

}  // namespace morpho::test
