#include "image_editor/frm_web_open.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "image_editor/disk_choice.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"
#include "text/trim.h"

namespace morpho {

namespace {

constexpr std::string_view kClosedFolder = "ClosedFolder";
constexpr std::string_view kOpenFolder = "OpenFolder";
constexpr std::string_view kEveryFile = "*";

TreeNodeSpec FolderNode(std::string_view name) {
    return {name, kClosedFolder, kOpenFolder, true};
}

// The folder's path in the web, without "/" at its ends; empty for the root folder.
std::string PathOf(const TreeNode& node) {
    if (node.Parent() == nullptr) return {};
    const std::string above = PathOf(*node.Parent());
    return above.empty() ? node.Text() : above + "/" + node.Text();
}

std::string Joined(const std::string& path, const std::string& name) {
    return path.empty() ? name : path + "/" + name;
}

std::string CutPart(std::string_view& text) {
    const std::size_t end = std::min(text.find('|'), text.size());
    const std::string part(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

}  // namespace

frmWebOpen::frmWebOpen(const Program& program, std::string_view caption)
    : LoggedForm(program, {.name = "frmWebOpen", .caption = caption, .inner = {8400, 5850}}) {
    lstFileExt.SetVisible(false);
    optViewModeList.SetValueQuietly(true);
}

void frmWebOpen::Form_Load() {
    web_ = TheComponent().application->ActiveWeb();
    if (!web_) throw RunTimeError(ErrorNumber::kObjectNotSet, "No web is open.");
    const std::string title = web_->Title();
    cmbWebs.AddItem(title);
    cmbWebs.SetListIndex(0);
    const auto root = web_->RootFolder();
    TreeNode& node = tvFolders.AddNode(nullptr, FolderNode(title));
    AddFolders(node, *root);
    tvFolders.SetExpanded(node, true);
    ListFileTypes();
    cmbFileTypes.SetListIndex(0);
    tvFolders.SelectNode(&node);
    txtFileName.SetText(OpenMode ? std::string() : ProposedName);
    txtFileName.SetFocus();
    txtFileName.SelectAll();
}

void frmWebOpen::AddFolders(TreeNode& node, WebFolder& folder) {
    const int count = folder.FolderCount();
    for (int i = 0; i < count; ++i) {
        const auto child = folder.FolderAt(i);
        AddFolders(tvFolders.AddNode(&node, FolderNode(child->Name())), *child);
    }
}

void frmWebOpen::ListFileTypes() {
    std::string_view filter = WebFilter;
    while (!filter.empty()) {
        const std::string description = CutPart(filter);
        const std::string extensions = CutPart(filter);
        if (description.empty() || extensions.empty()) continue;
        lstFileExt.AddItem(extensions);
        cmbFileTypes.AddItem(description);
    }
    if (cmbFileTypes.ListCount() > 0) return;
    lstFileExt.AddItem(kEveryFile);
    cmbFileTypes.AddItem("All files (*.*)");
}

void frmWebOpen::ListFiles() {
    lvFiles.Clear();
    files_.clear();
    const auto folder = SelectedFolder();
    if (!folder) return;
    const int count = folder->FileCount();
    for (int i = 0; i < count; ++i)
        files_.push_back(folder->FileAt(i));
    for (const WebFile& file : files_) {
        if (!IsOfSelectedType(file)) continue;
        std::string type = file.extension;
        std::transform(type.begin(), type.end(), type.begin(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
        lvFiles.AddRow({file.name, "Image", {std::move(type)}});
    }
}

bool frmWebOpen::IsOfSelectedType(const WebFile& file) const {
    if (cmbFileTypes.ListIndex() == kNoEntry) return false;
    const std::string& extensions = lstFileExt.List(cmbFileTypes.ListIndex());
    if (extensions == kEveryFile) return true;
    const std::string wrapped = ";" + Folded(extensions) + ";";
    return wrapped.find(";" + Folded(file.extension) + ";") != std::string::npos;
}

std::unique_ptr<WebFolder> frmWebOpen::SelectedFolder() {
    if (tvFolders.SelectedNode() == nullptr) return nullptr;
    const std::string path = PathOf(*tvFolders.SelectedNode());
    return path.empty() ? web_->RootFolder() : web_->LocateFolder(path);
}

void frmWebOpen::optViewMode_Click(ListView::View view) {
    lvFiles.SetView(view);
}

void frmWebOpen::lvFiles_ItemClick(int row) {
    txtFileName.SetText(lvFiles.Row(row).text);
}

// A name that the person types counts, not the row that was selected before.
void frmWebOpen::txtFileName_Change() {
    const int row = lvFiles.SelectedRow();
    if (row != kNoEntry && lvFiles.Row(row).text != txtFileName.Text())
        lvFiles.SelectRowQuietly(kNoEntry);
}

void frmWebOpen::btnNewFolder_Click() {
    TreeNode* const parent = tvFolders.SelectedNode();
    const auto folder = SelectedFolder();
    if (!folder) return;
    for (std::int16_t number = 0; number < std::numeric_limits<std::int16_t>::max(); ++number) {
        const std::string name = "New_Folder" + (number == 0 ? "" : std::to_string(number));
        if (web_->LocateFolder(Joined(PathOf(*parent), name))) continue;
        folder->AddFolder(name);
        TreeNode& added = tvFolders.AddNode(parent, FolderNode(name));
        tvFolders.EnsureVisible(added);
        tvFolders.SelectNode(&added);
        return;
    }
    throw RunTimeError(ErrorNumber::kOverflow, "Overflow");
}

std::optional<std::string> frmWebOpen::FindFile(std::string_view name) const {
    const auto found = std::find_if(files_.begin(), files_.end(), [&](const WebFile& file) {
        return EqualIgnoringCase(file.name, name);
    });
    if (found == files_.end()) return {};
    return found->name;
}

void frmWebOpen::btnOK_Click() {
    const std::string typed(Trim(txtFileName.Text()));
    if (typed.empty() || tvFolders.SelectedNode() == nullptr) return;
    const std::string name = WithExtension(typed, DefaultExtension);
    // A file is there also when the selected type does not show it: it must not be replaced
    // unasked.
    const std::optional<std::string> found = FindFile(name);
    if (!MayUse(name, found)) return;
    const std::string path = Joined(PathOf(*tvFolders.SelectedNode()), found.value_or(name));
    Finish(ImageKind::kWeb, web_->Url() + "/" + path);
}

bool frmWebOpen::MayUse(const std::string& name, const std::optional<std::string>& found) {
    if (OpenMode) {
        return found || Refuse(
                            "Unable to locate the specified file. Please specify a valid file "
                            "name.");
    }
    if (!found) return IsValidFileName(name) || Refuse("File name contains invalid characters.");
    if (MayReplace(*this, name, Title())) return true;
    txtFileName.SetFocus();
    return false;
}

bool frmWebOpen::Refuse(std::string_view reason) {
    MsgBox(reason, kOkOnly | kCriticalIcon, Title());
    txtFileName.SetFocus();
    return false;
}

void frmWebOpen::btnExplorer_Click() {
    const auto mode = OpenMode ? FileDialog::Mode::kOpen : FileDialog::Mode::kSave;
    const auto chosen = ChooseDiskFile(
        *this, TheToolkit(),
        {.mode = mode, .filter = DiskFilter, .name = OpenMode ? std::string() : ProposedName});
    if (!chosen) return;
    const std::string name = FileNameOf(*chosen);
    if (name.starts_with(".")) {
        MsgBox("Invalid file name specified.", kOkOnly | kCriticalIcon, Title());
        return;
    }
    const std::string complete = OpenMode ? name : WithExtension(name, DefaultExtension);
    const std::string path = chosen->substr(0, chosen->size() - name.size()) + complete;
    // The file dialog has asked for the name without the extension.
    const bool asked = complete == name;
    if (!OpenMode && !asked && ThePlatform().files.Find(path) &&
        !MayReplace(*this, complete, Title()))
        return;
    Finish(ImageKind::kDisk, path);
}

void frmWebOpen::btnCancel_Click() {
    Finish(ImageKind::kNone, {});
}

void frmWebOpen::Finish(ImageKind kind, std::string address) {
    ResultKind = kind;
    ResultAddress = std::move(address);
    Hide();
}

}  // namespace morpho
