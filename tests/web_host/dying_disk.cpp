#include "web_host/dying_disk.h"

namespace morpho {

namespace {

class DyingFile : public NewFile {
  public:
    DyingFile(std::unique_ptr<NewFile> file, DyingDisk& disk)
        : file_(std::move(file)), disk_(disk) {}
    void Write(std::string_view bytes) override { file_->Write(bytes); }
    void Commit() override {
        disk_.Count();
        file_->Commit();
    }

  private:
    std::unique_ptr<NewFile> file_;
    DyingDisk& disk_;
};

class DyingFolder : public Folder {
  public:
    DyingFolder(std::unique_ptr<Folder> folder, DyingDisk& disk)
        : folder_(std::move(folder)), disk_(disk) {}

    std::string Path() const override { return folder_->Path(); }
    std::string PathOf(std::string_view name) const override { return folder_->PathOf(name); }
    FolderId Id() const override { return folder_->Id(); }
    std::unique_ptr<Folder> OpenAgain() const override { return Dying(folder_->OpenAgain()); }
    std::vector<FolderEntry> Entries() const override { return folder_->Entries(); }
    std::optional<FolderEntry> Find(std::string_view name) const override {
        return folder_->Find(name);
    }
    std::unique_ptr<Folder> Open(std::string_view name) const override {
        return Dying(folder_->Open(name));
    }
    std::unique_ptr<ReadableFile> OpenFile(std::string_view name) const override {
        return folder_->OpenFile(name);
    }
    std::unique_ptr<Folder> Create(std::string_view name) override {
        disk_.Count();
        return Dying(folder_->Create(name));
    }
    std::unique_ptr<NewFile> Replace(std::string_view name, Durability durability) override {
        return std::make_unique<DyingFile>(folder_->Replace(name, durability), disk_);
    }
    std::unique_ptr<NewFile> AddLike(std::string_view name, std::string_view model) override {
        return std::make_unique<DyingFile>(folder_->AddLike(name, model), disk_);
    }
    void Rename(std::string_view from, std::string_view to) override {
        disk_.Count();
        folder_->Rename(from, to);
    }
    void Link(std::string_view name, Folder& target, std::string_view newName) override {
        disk_.Count();
        folder_->Link(name, *static_cast<DyingFolder&>(target).folder_, newName);
    }
    void Remove(std::string_view name) override {
        disk_.Count();
        folder_->Remove(name);
    }
    void RemoveFolder(std::string_view name) override {
        disk_.Count();
        folder_->RemoveFolder(name);
    }
    void Flush(const std::vector<std::string>& names) override {
        disk_.Count();
        folder_->Flush(names);
    }
    std::unique_ptr<FolderLock> TryLock(std::string_view name, std::string& holder) override {
        disk_.Count();
        return folder_->TryLock(name, holder);
    }

  private:
    std::unique_ptr<Folder> Dying(std::unique_ptr<Folder> folder) const {
        return std::make_unique<DyingFolder>(std::move(folder), disk_);
    }

    std::unique_ptr<Folder> folder_;
    DyingDisk& disk_;
};

}  // namespace

std::unique_ptr<Folder> DyingDisk::Open(std::string_view path) {
    return std::make_unique<DyingFolder>(test::RealDisk::Open(path), *this);
}

std::unique_ptr<Folder> DyingDisk::OpenOrCreate(std::string_view path) {
    return std::make_unique<DyingFolder>(test::RealDisk::OpenOrCreate(path), *this);
}

}  // namespace morpho
