#include "windows_system/windows_folder.h"

#include "web_host/parallel.h"
#include "windows_system/disk_calls.h"
#include "windows_system/full_path.h"
#include "windows_system/lock_file.h"
#include "windows_system/patience.h"
#include "windows_system/replacing_file.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

FolderEntry EntryOf(const FoundFile& file) {
    const EntryKind kind = file.IsLink()     ? EntryKind::kLink
                           : file.IsFolder() ? EntryKind::kFolder
                                             : EntryKind::kFile;
    return {file.name, kind};
}

class WindowsFile : public ReadableFile {
  public:
    explicit WindowsFile(std::wstring path)
        : path_(std::move(path)),
          file_(OpenToRead(path_, Links::kRefused)),
          size_(SizeOf(file_, path_)) {}

    std::uint64_t Size() const override { return size_; }
    std::string Read(std::uint64_t offset, std::uint64_t count) const override {
        return ReadFrom(file_, offset, std::min(count, size_ > offset ? size_ - offset : 0), path_);
    }

  private:
    std::wstring path_;
    FileHandle file_;
    std::uint64_t size_;
};

}  // namespace

std::wstring WindowsFolder::At(std::string_view name) const {
    const std::wstring wide = Wide(name);
    if (!IsPlainName(wide))
        throw SystemError(ErrorNumber::kPathFileAccess, Path(), "has no such entry",
                          "\"" + std::string(name) + "\" is no name of a file or folder");
    return JoinPath(folder_->Path(), wide);
}

std::string WindowsFolder::Path() const {
    return ShownPath(folder_->Path());
}

std::string WindowsFolder::PathOf(std::string_view name) const {
    return ShownPath(JoinPath(folder_->Path(), Wide(name)));
}

std::unique_ptr<Folder> WindowsFolder::OpenAgain() const {
    return std::make_unique<WindowsFolder>(folder_);
}

std::vector<FolderEntry> WindowsFolder::Entries() const {
    std::vector<FolderEntry> entries;
    for (const FoundFile& file : FilesOf(folder_->Path()))
        entries.push_back(EntryOf(file));
    return entries;
}

std::optional<FolderEntry> WindowsFolder::Find(std::string_view name) const {
    const std::wstring wide = Wide(name);
    const auto found = IsPlainName(wide) ? FindFile(JoinPath(folder_->Path(), wide)) : std::nullopt;
    return found ? std::optional(EntryOf(*found)) : std::nullopt;
}

std::unique_ptr<Folder> WindowsFolder::Open(std::string_view name) const {
    return std::make_unique<WindowsFolder>(folder_->OpenInner(std::wstring(NameOf(At(name)))));
}

std::unique_ptr<ReadableFile> WindowsFolder::OpenFile(std::string_view name) const {
    return std::make_unique<WindowsFile>(At(name));
}

std::unique_ptr<Folder> WindowsFolder::Create(std::string_view name) {
    MakeFolder(At(name));
    return Open(name);
}

std::unique_ptr<NewFile> WindowsFolder::Replace(std::string_view name, Durability durability) {
    return std::make_unique<ReplacingFile>(At(name), durability);
}

std::unique_ptr<NewFile> WindowsFolder::AddLike(std::string_view name, std::string_view model) {
    return std::make_unique<ReplacingFile>(At(name), Durability::kUnflushed, At(model));
}

void WindowsFolder::Rename(std::string_view from, std::string_view to) {
    const std::wstring source = At(from);
    const std::wstring target = At(to);
    folder_->ChangeInner(Wide(from), Wide(to), [&] { MoveEntry(source, target); });
}

void WindowsFolder::Link(std::string_view name, Folder& target, std::string_view newName) {
    const std::wstring source = At(name);
    const std::wstring copy = static_cast<WindowsFolder&>(target).At(newName);
    if (::CreateHardLinkW(copy.c_str(), source.c_str(), nullptr)) return;
    const DWORD code = ::GetLastError();
    if (code == ERROR_ALREADY_EXISTS || code == ERROR_FILE_EXISTS)
        throw SystemError(code, ShownPath(copy), "could not be written");
    ReplacingFile file(copy, Durability::kFlushed);
    file.CopyFrom(OpenToRead(source, Links::kRefused), source);
    file.Commit();
}

void WindowsFolder::Remove(std::string_view name) {
    RemoveEntry(At(name));
}

void WindowsFolder::RemoveFolder(std::string_view name) {
    const std::wstring path = At(name);
    folder_->ChangeInner(Wide(name), {}, [&] { RemoveTree(path); });
}

// The system keeps a journal of a folder's own entries.
void WindowsFolder::Flush(const std::vector<std::string>& names) {
    std::vector<std::wstring> paths;
    for (const std::string& name : names)
        paths.push_back(At(name));
    InParallel(paths.size(), [&](std::size_t i) { FlushFile(paths[i]); });
}

std::unique_ptr<FolderLock> WindowsFolder::TryLock(std::string_view name, std::string& holder) {
    return TryLockFile(folder_, At(name), holder);
}

}  // namespace morpho
