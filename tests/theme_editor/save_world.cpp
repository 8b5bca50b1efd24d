#include "theme_editor/save_world.h"

namespace morpho::test {
namespace {

constexpr const char* kSettings = "Software\\VB and VBA Program Settings\\Theme Morpho\\Window";
constexpr const char* kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

const std::vector<std::pair<std::string, std::string>> kThemeFiles = {
    {"graph1.css", ".mstheme{list-image-1:url(wave.gif);list-image-2:url(shell.gif)}"},
    {"graph0.css", ""},
    {"theme.css", "body{background-image:url(back.gif)}"},
    {"wave.gif", "wave"},
    {"shell.gif", "shell"},
    {"back.gif", "back"}};

std::string Inf(const std::string& title, const std::string& readOnly) {
    return "[info]\r\ntitle=" + title + "\r\nreadonly=" + readOnly +
           "\r\nformat=2\r\n[titles]\r\n1031=Alt\r\n1033=" + title + "\r\n";
}

}  // namespace

SaveWorld::SaveWorld() {
    FakeRegistry& registry = p.registry;
    registry.PutString(kClassesRoot, "FrontPage.Explorer.6.0\\CLSID", "", "{FP}");
    registry.PutString(kClassesRoot, "CLSID\\{FP}\\LocalServer32", "", "C:\\Office\\frontpg.exe");
    registry.PutString(kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion",
                       "CommonFilesDir", "C:\\Common");
    registry.PutString(kCurrentUser, kShellFolders, "AppData", "C:\\Ann");
    registry.PutString(kCurrentUser, kShellFolders, "Cache", "C:\\Cache");
    registry.PutString(kCurrentUser, "Software\\Microsoft\\Office\\11.0\\Common\\General", "Themes",
                       "Themes");
    for (const char* setting : {"Splash", "QuickReference"})
        registry.PutString(kCurrentUser, kSettings, setting, "0");
    InstallTheme(kGlobalThemes, "coast", "Coast");
    InstallTheme(kGlobalThemes, "moor", "Moor");
    InstallTheme(kUserThemes, "dunes", "Dunes");
    for (const auto& [name, bytes] : kThemeFiles) {
        p.files.PutFile(kHostThemes + "coast\\" + name, bytes);
        p.files.PutFile(kWebThemes + "coast\\" + name, bytes);
    }
    p.files.PutFile(kHostThemes + "coast\\coast.inf", Inf("Coast", "false"));
    p.files.PutFile("C:\\Web\\index.htm", "theme=coast");
    p.application.web->themes = {{"coast", "Coast"}};
    p.application.web->themeOfWeb = "coast";
    p.application.web->properties["vti_showhiddenpages"] = "true";
    p.application.web->pages = {{"other.htm", "moor"}, {"index.htm", "coast"}};
}

void SaveWorld::OpenAndRecolour() {
    window = std::make_unique<frmThemeMorpho>(p.program);
    window->Load();
    window->sldHue.UserSettle(40);
    window->cmdApply.UserClick();
    p.shell.debugLines.clear();
}

void SaveWorld::PersonSavesAs(const std::string& name, const std::string& title, bool apply) {
    p.toolkit.WillPlay("frmSaveAs", [=, this](Form& form) {
        auto& dialog = dynamic_cast<frmSaveAs&>(form);
        prompts.push_back(dialog.lblMessage.Caption());
        dialog.txtThemeName.UserEdit(name);
        dialog.txtThemeTitle.UserEdit(title);
        dialog.chkApplyToWeb.UserSet(apply);
        if (!dialog.cmdSave.UserClick() || dialog.IsVisible()) dialog.cmdCancel.UserClick();
    });
}

void SaveWorld::InstallTheme(const std::string& themesFolder, const std::string& name,
                             const std::string& title, const std::string& readOnly) {
    const std::string path = themesFolder + name + '\\' + name;
    p.files.PutFile(path + ".inf", Inf(title, readOnly));
    p.files.PutFile(path + ".elm", Package(kThemeFiles));
}

std::map<std::string, std::string> SaveWorld::Tree() const {
    std::map<std::string, std::string> tree;
    for (const std::string& file : p.files.FilesBelow("C:")) {
        if (!file.starts_with("temp\\")) tree[file] = p.files.Bytes("C:\\" + file);
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
