#pragma once

#include <string>

#include "linux/whole_file.h"
#include "platform/file_system.h"

namespace morpho {

// The files of this computer; "Z:\" is "/" (see disk_path.h). Reads follow links; writing replaces
// the link itself. Copies belong to the user: they are writable even where
// their source is not.
class DiskFileSystem : public FileSystem {
  public:
    // What is written below `scratchFolder` (a path of the disk, or empty) need not survive a power
    // failure and is not flushed.
    explicit DiskFileSystem(std::string scratchFolder = {});

    std::optional<FileEntry> Find(std::string_view path) const override;
    std::vector<FileEntry> List(std::string_view folder) const override;
    std::string ReadFile(std::string_view path) const override;
    std::string ReadPart(std::string_view path, std::uint64_t offset,
                         std::size_t count) const override;
    void WriteFile(std::string_view path, std::string_view bytes) override;
    void WriteFile(std::string_view path,
                   const std::function<void(const ByteSink&)>& write) override;
    void AppendFile(std::string_view path, std::string_view bytes) override;
    void Copy(std::string_view source, std::string_view destination) override;
    void Move(std::string_view source, std::string_view destination) override;
    void Delete(std::string_view path) override;
    void CreateFolder(std::string_view path) override;
    void CopyFolder(std::string_view source, std::string_view destination) override;
    void DeleteFolder(std::string_view path) override;

  private:
    Durability DurabilityOf(const std::string& diskPath) const;

    std::string scratchFolder_;
};

}  // namespace morpho
