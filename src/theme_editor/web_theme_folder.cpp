#include "theme_editor/web_theme_folder.h"

#include <algorithm>
#include <exception>
#include <vector>

#include "frontpage/mod_fpole.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "shared/log.h"
#include "shared/numbers.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

constexpr FileAttributes kNotNormal = kFolderAttribute | kHiddenAttribute | kSystemAttribute;

}  // namespace

WebThemeFolder::~WebThemeFolder() {
    try {
        if (created_) Delete();
    } catch (const std::exception&) {
        // No page uses it. The next save of this name writes all its files anew.
    }
}

void WebThemeFolder::FindOrCreate() {
    const bool showsHiddenPages = ShowsHiddenPages();
    if (!showsHiddenPages && !FPIsFolderInWeb(program_, Url())) CreateByExplorer();
    folder_ = web_.LocateFolder(Url());
    if (!folder_ && showsHiddenPages) CreateByObjectModel();
}

bool WebThemeFolder::ShowsHiddenPages() const {
    try {
        const std::string value = web_.Property("vti_showhiddenpages").value_or(std::string());
        return EqualIgnoringAsciiCase(value, "true") || Val(value) != 0;
    } catch (const std::exception&) {
        return false;
    }
}

void WebThemeFolder::CreateByExplorer() {
    WriteLog(program_, "Using OLE to create theme folder on the web...");
    created_ = FPCreateFolder(program_, Url()) != 0;
}

void WebThemeFolder::CreateByObjectModel() {
    WriteLog(program_, "Using OM to create theme folder on the web...");
    const auto root = web_.RootFolder();
    auto themes = root->FindFolder("_themes");
    if (!themes) themes = root->AddFolder("_themes");
    folder_ = themes->AddFolder(name_);
    created_ = true;
}

void WebThemeFolder::AddFilesOf(const std::string& folder,
                                const std::function<void(const std::string&)>& beforeFile) {
    std::vector<FileEntry> files = program_.platform.files.List(folder);
    std::erase_if(files, [](const FileEntry& file) { return (file.attributes & kNotNormal) != 0; });
    std::stable_partition(files.begin(), files.end(), [&](const FileEntry& file) {
        return !EqualIgnoringCase(file.name, name_ + ".inf");
    });
    for (const FileEntry& file : files) {
        beforeFile(file.name);
        folder_->AddFile(folder + file.name, true);
    }
}

void WebThemeFolder::Delete() {
    if (!folder_) folder_ = web_.LocateFolder(Url());
    if (folder_) folder_->Delete();
    folder_.reset();
    created_ = false;
}

}  // namespace morpho
