#include "web_host/disk_web_folder.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/hidden_entries.h"
#include "web_host/limits.h"
#include "web_host/refusal.h"
#include "web_host/web_save_transaction.h"

namespace morpho {

namespace {

std::string ReadLocalFile(const FileSystem& files, std::string_view path) {
    const auto entry = files.Find(path);
    if (entry && entry->size > kMaxFileBytes)
        RefuseCall("\"" + std::string(path) + "\" is too large for a web's file.");
    return files.ReadFile(path);
}

void SortByName(std::vector<std::string>& names) {
    std::vector<std::pair<std::string, std::string>> byFolded;
    for (std::string& name : names) {
        std::string folded = Folded(name);
        byFolded.emplace_back(std::move(folded), std::move(name));
    }
    std::sort(byFolded.begin(), byFolded.end());
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = std::move(byFolded[i].second);
}

const std::string& NameAt(const std::vector<std::string>& names, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= names.size())
        RefuseCall("The folder has no such entry.");
    return names[static_cast<std::size_t>(index)];
}

}  // namespace

std::string DiskWebFolder::Name() const {
    return path_.empty() ? std::string() : path_.back();
}

std::string DiskWebFolder::Url() const {
    return web_->Files().UrlOf(path_);
}

int DiskWebFolder::FolderCount() const {
    return static_cast<int>(Entries().folders.size());
}

std::unique_ptr<WebFolder> DiskWebFolder::FolderAt(int index) {
    return Inner(NameAt(Entries().folders, index));
}

int DiskWebFolder::FileCount() const {
    return static_cast<int>(Entries().files.size());
}

WebFile DiskWebFolder::FileAt(int index) const {
    const std::string& name = NameAt(Entries().files, index);
    const std::size_t dot = name.rfind('.');
    return {name, Url() + '/' + name, dot == name.npos ? std::string() : name.substr(dot + 1)};
}

std::unique_ptr<WebFolder> DiskWebFolder::FindFolder(std::string_view name) {
    WebPath inner = path_;
    inner.emplace_back(name);
    if (!web_->Files().FindFolder(inner)) return nullptr;
    const auto entry = Opened()->Find(name);
    // The folder of a theme that is being saved has no entry of its name yet.
    return Inner(entry ? entry->name : std::string(name));
}

std::unique_ptr<WebFolder> DiskWebFolder::AddFolder(std::string_view name) {
    const auto folder = Opened();
    entries_.reset();
    if (folder->Find(name)) RefuseCall("\"" + folder->PathOf(name) + "\" exists already.");
    if (web_->Transaction() && IsThemesFolder()) {
        web_->Transaction()->CreateTheme(std::string(name));
    } else {
        folder->Create(name);
    }
    return Inner(std::string(name));
}

void DiskWebFolder::AddFile(std::string_view localPath, bool overwrite) {
    const auto folder = Opened();
    entries_.reset();
    const std::string bytes = ReadLocalFile(files_, localPath);
    const std::string name(localPath.substr(localPath.find_last_of("\\/") + 1));
    const auto existing = folder->Find(name);
    if (existing && (!overwrite || existing->kind == EntryKind::kFolder))
        RefuseCall("\"" + folder->PathOf(existing->name) + "\" exists already.");
    if (web_->Transaction() && IsTheme() && !IsCreatedBySave())
        return web_->Transaction()->ReplaceThemeFile(Name(), name, bytes);
    // The files of a new theme are flushed together, when the save is committed.
    const Durability durability = IsCreatedBySave() ? Durability::kUnflushed : Durability::kFlushed;
    WriteWholeFile(*folder, existing ? existing->name : name, bytes, durability);
}

void DiskWebFolder::Delete() {
    if (path_.empty()) RefuseCall("The web itself cannot be deleted.");
    if (IsCreatedBySave()) return web_->Transaction()->DropTheme();
    if (web_->Transaction()) RefuseCall("While a theme is saved no other folder can be deleted.");
    Opened();
    WebPath parent = path_;
    parent.pop_back();
    web_->Files().OpenFolder(parent)->RemoveFolder(Name());
}

const DiskWebFolder::ShownEntries& DiskWebFolder::Entries() const {
    if (entries_) return *entries_;
    ShownEntries shown;
    const bool showsHidden = ShowsHiddenEntries(web_->Files());
    for (const FolderEntry& entry : Opened()->Entries()) {
        if (!IsShownEntry(entry, showsHidden)) continue;
        (entry.kind == EntryKind::kFolder ? shown.folders : shown.files).push_back(entry.name);
    }
    SortByName(shown.folders);
    SortByName(shown.files);
    return entries_.emplace(std::move(shown));
}

std::unique_ptr<Folder> DiskWebFolder::Opened() const {
    return web_->Files().OpenFolder(path_);
}

std::unique_ptr<WebFolder> DiskWebFolder::Inner(const std::string& name) const {
    WebPath path = path_;
    path.push_back(name);
    return std::make_unique<DiskWebFolder>(web_, files_, std::move(path));
}

bool DiskWebFolder::IsThemesFolder() const {
    return path_.size() == 1 && EqualIgnoringCase(path_[0], kThemesFolder);
}

bool DiskWebFolder::IsTheme() const {
    return path_.size() == 2 && EqualIgnoringCase(path_[0], kThemesFolder);
}

bool DiskWebFolder::IsCreatedBySave() const {
    return IsTheme() && web_->Transaction() && web_->Transaction()->HasCreated(Name());
}

std::unique_ptr<WebFolder> LocateWebFolder(const std::shared_ptr<WebSession>& web,
                                           const FileSystem& files, std::string_view url) {
    auto path = web->Files().Find(url, EntryKind::kFolder);
    if (!path) return nullptr;
    return std::make_unique<DiskWebFolder>(web, files, std::move(*path));
}

}  // namespace morpho
