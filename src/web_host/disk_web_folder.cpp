#include "web_host/disk_web_folder.h"

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

[[noreturn]] void Refuse(const std::string& sentence) {
    throw RunTimeError(ErrorNumber::kAutomation, sentence);
}

std::string ReadLocalFile(std::string_view localPath) {
    const auto path = FindOnDisk(localPath);
    if (!path) Refuse("\"" + std::string(localPath) + "\" is no path below \"Z:\\\".");
    const DiskFolder folder = DiskFolder::Open(ParentFolder(*path), true);
    return ReadWebFile(folder, std::string(LastName(*path)));
}

}  // namespace

std::string DiskWebFolder::Name() const {
    return names_.empty() ? std::string() : NameFromDisk(names_.back());
}

std::string DiskWebFolder::Url() const {
    std::string url = web_->Url();
    for (const std::string& name : names_)
        url += '/' + NameFromDisk(name);
    return url;
}

std::unique_ptr<WebFolder> DiskWebFolder::FindFolder(std::string_view name) {
    const auto entry = Folder().Find(NameToDisk(name));
    if (!entry || entry->kind != DiskKind::kFolder) return nullptr;
    return Inner(entry->name);
}

std::unique_ptr<WebFolder> DiskWebFolder::AddFolder(std::string_view name) {
    const DiskFolder folder = Folder();
    const std::string diskName = NameToDisk(name);
    if (!IsEntryName(diskName)) Refuse("\"" + std::string(name) + "\" is no name for a folder.");
    if (folder.Find(diskName)) Refuse("\"" + folder.PathOf(diskName) + "\" exists already.");
    const bool isTheme = names_.size() == 1 && EqualIgnoringCase(names_.front(), "_themes");
    if (isTheme) web_->changeNote.Hold(folder.Path(), {ThemeChange::Kind::kMaking, diskName});
    web_->writer->MakeFolder(folder.PathOf(diskName));
    return Inner(diskName);
}

void DiskWebFolder::AddFile(std::string_view localPath, bool overwrite) {
    const DiskFolder folder = Folder();
    const std::string bytes = ReadLocalFile(localPath);
    const std::size_t separator = localPath.find_last_of("\\/");
    const std::string diskName = NameToDisk(localPath.substr(separator + 1));
    const auto existing = folder.Find(diskName);
    if (!existing) return web_->writer->AddFile(folder.PathOf(diskName), bytes);
    if (!overwrite || existing->kind == DiskKind::kFolder)
        Refuse("\"" + folder.PathOf(existing->name) + "\" exists already.");
    web_->writer->ReplaceFile(folder.PathOf(existing->name), bytes);
}

void DiskWebFolder::Delete() {
    if (names_.empty()) Refuse("The web itself cannot be deleted.");
    web_->writer->RemoveFolder(Folder().Path());
    web_->changeNote.Release();
}

DiskFolder DiskWebFolder::Folder() const {
    auto folder = FindFolderInWeb(*web_, names_);
    if (!folder)
        throw FileError(ErrorNumber::kPathNotFound, Url(), "could not be opened",
                        "the web has no such folder");
    return std::move(*folder);
}

std::unique_ptr<WebFolder> DiskWebFolder::Inner(const std::string& diskName) const {
    std::vector<std::string> names = names_;
    names.push_back(diskName);
    return std::make_unique<DiskWebFolder>(web_, std::move(names));
}

std::unique_ptr<WebFolder> LocateWebFolder(const std::shared_ptr<WebSession>& web,
                                           std::string_view url) {
    const auto names = NamesInWeb(*web, url);
    if (!names) return nullptr;
    std::unique_ptr<WebFolder> folder =
        std::make_unique<DiskWebFolder>(web, std::vector<std::string>());
    for (const std::string& name : *names) {
        if (folder) folder = folder->FindFolder(NameFromDisk(name));
    }
    return folder;
}

}  // namespace morpho
