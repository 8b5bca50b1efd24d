#include "linux/linux_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/flush_files.h"
#include "linux/folder_lock.h"
#include "linux/folder_tree.h"
#include "linux/whole_file.h"
#include "text/utf8.h"

namespace morpho {

namespace {

// The name as bytes of the disk. A name that leads out of the folder is refused.
std::string Checked(const DiskFolder& folder, std::string_view name) {
    std::string diskName = NameToDisk(name);
    if (!IsEntryName(diskName))
        throw FileError(ErrorNumber::kPathFileAccess, folder.Path(), "has no such entry",
                        "\"" + std::string(name) + "\" is no name of a file or folder");
    return diskName;
}

EntryKind KindOf(DiskKind kind) {
    switch (kind) {
        case DiskKind::kFile:
            return EntryKind::kFile;
        case DiskKind::kFolder:
            return EntryKind::kFolder;
        case DiskKind::kLink:
            return EntryKind::kLink;
        default:
            return EntryKind::kOther;
    }
}

FolderEntry EntryOf(const DiskEntry& entry) {
    return {NameFromDisk(entry.name), KindOf(entry.kind)};
}

class LinuxFile : public ReadableFile {
  public:
    LinuxFile(Descriptor file, std::string path) : file_(std::move(file)), path_(std::move(path)) {
        struct stat status = {};
        if (::fstat(file_.Number(), &status) != 0) throw FileError(errno, path_, kFailure);
        size_ = static_cast<std::uint64_t>(status.st_size);
    }

    std::uint64_t Size() const override { return size_; }

    std::string Read(std::uint64_t offset, std::uint64_t count) const override {
        return ReadPiece(file_, offset, std::min(count, size_ > offset ? size_ - offset : 0),
                         path_);
    }

  private:
    static constexpr std::string_view kFailure = "could not be read";

    Descriptor file_;
    std::string path_;
    std::uint64_t size_ = 0;
};

}  // namespace

std::string LinuxFolder::Path() const {
    return ValidUtf8(folder_.Path());
}

std::string LinuxFolder::PathOf(std::string_view name) const {
    return ValidUtf8(folder_.PathOf(NameToDisk(name)));
}

std::unique_ptr<Folder> LinuxFolder::OpenAgain() const {
    return std::make_unique<LinuxFolder>(folder_.Again());
}

FolderId LinuxFolder::Id() const {
    struct stat status = {};
    if (::fstat(folder_.Number(), &status) != 0)
        throw FileError(errno, folder_.Path(), "could not be opened");
    return {status.st_dev, status.st_ino};
}

std::vector<FolderEntry> LinuxFolder::Entries() const {
    std::vector<FolderEntry> entries;
    for (const DiskEntry& entry : folder_.Entries())
        entries.push_back(EntryOf(entry));
    return entries;
}

std::optional<FolderEntry> LinuxFolder::Find(std::string_view name) const {
    const auto entry = folder_.Find(NameToDisk(name));
    return entry ? std::optional(EntryOf(*entry)) : std::nullopt;
}

std::unique_ptr<Folder> LinuxFolder::Open(std::string_view name) const {
    return std::make_unique<LinuxFolder>(folder_.Subfolder(Checked(folder_, name)));
}

std::unique_ptr<ReadableFile> LinuxFolder::OpenFile(std::string_view name) const {
    const std::string diskName = Checked(folder_, name);
    return std::make_unique<LinuxFile>(folder_.OpenFile(diskName), folder_.PathOf(diskName));
}

std::unique_ptr<Folder> LinuxFolder::Create(std::string_view name) {
    const std::string diskName = Checked(folder_, name);
    if (::mkdirat(folder_.Number(), diskName.c_str(), 0777) != 0)
        throw FileError(errno, folder_.PathOf(diskName), "could not be created");
    return Open(name);
}

std::unique_ptr<NewFile> LinuxFolder::Replace(std::string_view name, Durability durability) {
    return std::make_unique<WholeFile>(folder_.Handle(), folder_.Path(), Checked(folder_, name),
                                       durability);
}

std::unique_ptr<NewFile> LinuxFolder::AddLike(std::string_view name, std::string_view model) {
    return std::make_unique<WholeFile>(folder_.Handle(), folder_.Path(), Checked(folder_, name),
                                       Durability::kUnflushed, Checked(folder_, model));
}

void LinuxFolder::Rename(std::string_view from, std::string_view to) {
    const std::string source = Checked(folder_, from);
    const std::string target = Checked(folder_, to);
    const auto entry = folder_.Find(source);
    const bool isFolder = entry && entry->kind == DiskKind::kFolder;
    // A folder would replace an empty one.
    const unsigned flags = isFolder ? RENAME_NOREPLACE : 0;
    int result =
        ::renameat2(folder_.Number(), source.c_str(), folder_.Number(), target.c_str(), flags);
    if (result != 0 && errno == EINVAL && isFolder) {
        // The file system does not know the flag; an empty folder of that name loses nothing.
        result = ::renameat(folder_.Number(), source.c_str(), folder_.Number(), target.c_str());
    }
    if (result != 0) throw FileError(errno, folder_.PathOf(target), "could not be written");
}

void LinuxFolder::Link(std::string_view name, Folder& target, std::string_view newName) {
    auto& other = static_cast<LinuxFolder&>(target);
    const std::string source = Checked(folder_, name);
    const std::string copy = Checked(other.folder_, newName);
    if (::linkat(folder_.Number(), source.c_str(), other.folder_.Number(), copy.c_str(), 0) == 0)
        return;
    if (errno == EEXIST) throw FileError(errno, other.folder_.PathOf(copy), "could not be written");
    WholeFile file(other.folder_.Handle(), other.folder_.Path(), copy, Durability::kFlushed);
    file.CopyFrom(folder_.OpenFile(source), folder_.PathOf(source));
    file.Commit();
}

void LinuxFolder::Remove(std::string_view name) {
    const std::string diskName = Checked(folder_, name);
    if (::unlinkat(folder_.Number(), diskName.c_str(), 0) != 0)
        throw FileError(errno, folder_.PathOf(diskName), "could not be deleted");
}

void LinuxFolder::RemoveFolder(std::string_view name) {
    RemoveTree(folder_, Checked(folder_, name));
}

void LinuxFolder::Flush(const std::vector<std::string>& names) {
    std::vector<std::string> diskNames;
    diskNames.reserve(names.size());
    for (const std::string& name : names)
        diskNames.push_back(Checked(folder_, name));
    FlushFiles(folder_, diskNames);
}

std::unique_ptr<FolderLock> LinuxFolder::TryLock(std::string_view name, std::string& holder) {
    return TryLockFile(folder_, Checked(folder_, name), holder);
}

}  // namespace morpho
