#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/list_view.h"
#include "forms/lists.h"
#include "forms/option_button.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"
#include "image_editor/image_location.h"
#include "platform/front_page.h"
#include "shared/logged_form.h"

namespace morpho {

// Chooses a file of the open web, to open it or to save one there; hands over to the common file
// dialog for a file on disk. The caller sets the members up to ProposedName, shows the dialog
// modally and reads the result.
class frmWebOpen : public LoggedForm {
  public:
    frmWebOpen(const Program& program, std::string_view caption);

    bool OpenMode = true;  // the file must exist; false: it is to be saved
    // Descriptions and lists of extensions alternate, separated by "|", extensions by ";": "Image
    // files|gif;jpg". "*" means every file.
    std::string WebFilter = "All Files|*";
    std::string DiskFilter = "All Files|*.*||";  // see ReadFilter
    std::string DefaultExtension;                // without "."; for a name that has none
    std::string ProposedName;                    // to save

    std::string ResultAddress;
    ImageKind ResultKind = ImageKind::kNone;  // kNone: cancelled

    Label lblLookIn{*this, {"lblLookIn", {120, 180, 900, 240}, "Look &in:"}};
    // Holds the open web alone.
    ComboBox cmbWebs{*this, {"cmbWebs", {1080, 120, 3300, 315}, {}, {}, "Web"}};
    CommandButton btnNewFolder{
        *this,
        {"btnNewFolder", {4500, 105, 1275, 345}, "New Fol&der", "Create a folder in this one"},
        [this] { btnNewFolder_Click(); }};
    OptionButton optViewModeList{*this,
                                 {"optViewMode(0)", {5970, 60, 2310, 225}, "View as &list"},
                                 [this] { optViewMode_Click(ListView::View::kList); }};
    OptionButton optViewModeReport{*this,
                                   {"optViewMode(1)", {5970, 300, 2310, 225}, "View as &report"},
                                   [this] { optViewMode_Click(ListView::View::kReport); }};
    TreeView tvFolders{*this,
                       {"tvFolders", {120, 600, 2880, 3840}, {}, "Folders of the web", "Folders"},
                       [this](TreeNode&) { ListFiles(); }};
    ListView lvFiles{*this,
                     {"lvFiles", {3060, 600, 5220, 3840}, {}, "Files of the folder", "Files"},
                     {{"Name", 3600}, {"Type", 1080}},
                     [this](int row) { lvFiles_ItemClick(row); }};
    Label lblFileName{*this, {"lblFileName", {120, 4620, 1200, 240}, "File &name:"}};
    TextBox txtFileName{
        *this, {"txtFileName", {1380, 4560, 5460, 315}}, TextBox::Kind::kSingleLine, {}, [this] {
            txtFileName_Change();
        }};
    CommandButton btnOK{*this,
                        {"btnOK", {7005, 4545, 1275, 345}, "OK"},
                        [this] { btnOK_Click(); },
                        ButtonRole::kDefault};
    Label lblFileType{*this, {"lblFileType", {120, 5040, 1200, 240}, "Files of &type:"}};
    ComboBox cmbFileTypes{
        *this, {"cmbFileTypes", {1380, 4980, 5460, 315}}, [this] { ListFiles(); }};
    CommandButton btnCancel{*this,
                            {"btnCancel", {7005, 4965, 1275, 345}, "Cancel"},
                            [this] { btnCancel_Click(); },
                            ButtonRole::kCancel};
    CommandButton btnExplorer{*this,
                              {"btnExplorer",
                               {7005, 5385, 1275, 345},
                               "E&xplorer",
                               "Choose a file that is not in the web"},
                              [this] { btnExplorer_Click(); }};
    // The extensions of the file types, row for row; never shown.
    ListBox lstFileExt{*this, {"lstFileExt", {1380, 4980, 5460, 315}}};

  protected:
    void Form_Load() override;

  private:
    void btnNewFolder_Click();
    void optViewMode_Click(ListView::View view);
    void lvFiles_ItemClick(int row);
    void txtFileName_Change();
    void btnOK_Click();
    void btnCancel_Click();
    void btnExplorer_Click();

    void AddFolders(TreeNode& node, WebFolder& folder);
    void ListFileTypes();
    // Lists the files of the selected folder that are of the selected type.
    void ListFiles();
    bool IsOfSelectedType(const WebFile& file) const;
    std::unique_ptr<WebFolder> SelectedFolder();
    // The spelling of the file of that name in the selected folder, whatever its type.
    std::optional<std::string> FindFile(std::string_view name) const;
    bool MayUse(const std::string& name, const std::optional<std::string>& found);
    // Tells why, and returns to the file name; always false.
    bool Refuse(std::string_view reason);
    std::string_view Title() const { return OpenMode ? "Open" : "Save"; }
    void Finish(ImageKind kind, std::string address);

    std::unique_ptr<Web> web_;
    std::vector<WebFile> files_;  // of the selected folder
};

}  // namespace morpho
