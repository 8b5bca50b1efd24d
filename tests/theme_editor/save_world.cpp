#include "theme_editor/save_world.h"

namespace morpho::test {
namespace {

std::string Inf(const std::string& title, const std::string& readOnly) {
    return "[info]\r\ntitle=" + title + "\r\nreadonly=" + readOnly +
           "\r\nformat=2\r\n[titles]\r\n1031=Alt\r\n1033=" + title + "\r\n";
}

}  // namespace

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
    world.application.web->properties["vti_showhiddenpages"] = "true";
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
