#pragma once

#include <string>

#include "desktop/desktop_system.h"

namespace morpho {

// A work folder among the user's local data, which other users cannot read. A lock file in it tells
// the next start whether the program that made it still runs.
class WindowsWorkFolder : public WorkFolder {
  public:
    // Makes it in `root`, a Windows path.
    explicit WindowsWorkFolder(const std::string& root);
    ~WindowsWorkFolder() override;
    WindowsWorkFolder(const WindowsWorkFolder&) = delete;
    WindowsWorkFolder& operator=(const WindowsWorkFolder&) = delete;

    std::filesystem::path Path() const override;

  private:
    void RemoveAbandoned();
    void Create(std::uint64_t program);

    std::unique_ptr<Folder> root_;
    std::string name_;
    std::unique_ptr<FolderLock> lock_;
};

}  // namespace morpho
