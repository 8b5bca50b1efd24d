#pragma once

#include "web_host/disk.h"
#include "windows_system/held_folder.h"

namespace morpho {

// An open folder of this computer for the stand-in host. It is held, so that everything can be
// reached by its path.
class WindowsFolder : public Folder {
  public:
    explicit WindowsFolder(std::shared_ptr<HeldFolder> folder) : folder_(std::move(folder)) {}

    std::string Path() const override;
    std::string PathOf(std::string_view name) const override;
    FolderId Id() const override { return folder_->Id(); }
    std::unique_ptr<Folder> OpenAgain() const override;
    std::vector<FolderEntry> Entries() const override;
    std::optional<FolderEntry> Find(std::string_view name) const override;
    std::unique_ptr<Folder> Open(std::string_view name) const override;
    std::unique_ptr<ReadableFile> OpenFile(std::string_view name) const override;
    std::unique_ptr<Folder> Create(std::string_view name) override;
    std::unique_ptr<NewFile> Replace(std::string_view name, Durability durability) override;
    std::unique_ptr<NewFile> AddLike(std::string_view name, std::string_view model) override;
    void Rename(std::string_view from, std::string_view to) override;
    void Link(std::string_view name, Folder& target, std::string_view newName) override;
    void Remove(std::string_view name) override;
    void RemoveFolder(std::string_view name) override;
    void Flush(const std::vector<std::string>& names) override;
    std::unique_ptr<FolderLock> TryLock(std::string_view name, std::string& holder) override;

  private:
    // The full path of an entry. A name that leads out of the folder is refused.
    std::wstring At(std::string_view name) const;

    std::shared_ptr<HeldFolder> folder_;
};

}  // namespace morpho
