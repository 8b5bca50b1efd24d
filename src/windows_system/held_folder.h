#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "web_host/disk.h"
#include "windows_system/disk_calls.h"

namespace morpho {

// A folder that is held, and so keeps its path, whatever other programs do (see HoldFolder). This
// program itself can rename or remove it through the folder above, which knows who holds it.
class HeldFolder {
  public:
    // Follows links on the way.
    static std::shared_ptr<HeldFolder> Open(const std::wstring& path);
    // A folder in this one, no link.
    std::shared_ptr<HeldFolder> OpenInner(const std::wstring& name);

    // Throws kPathNotFound when this program has removed the folder.
    std::wstring Path() const;
    FolderId Id() const { return id_; }

    // Runs `change`, which renames the folder `name` in this one to `newName`, or removes it where
    // that is empty. Those that hold the folder, or one below it, let go meanwhile, and hold it by
    // its new name afterwards.
    void ChangeInner(const std::wstring& name, const std::wstring& newName,
                     const std::function<void()>& change);

  private:
    HeldFolder(std::wstring path, Links links, std::shared_ptr<std::recursive_mutex> mutex);

    std::vector<std::shared_ptr<HeldFolder>> LiveInner() const;
    void LetGo();
    void HoldAgain(const std::wstring& path);

    // One for all folders that were opened from one another.
    std::shared_ptr<std::recursive_mutex> mutex_;
    std::wstring path_;
    FileHandle handle_;
    FolderId id_;
    std::vector<std::weak_ptr<HeldFolder>> inner_;
};

}  // namespace morpho
