#pragma once

#include <string>

#include "platform/file_system.h"
#include "web_host/disk.h"

namespace morpho {

// The files of this computer, and those of others by "\\server\share". Reads follow links; writing
// replaces the link itself. Where another program has a file open, a call waits for a moment and
// then fails. Of the attributes all bits are passed on.
class WindowsFileSystem : public FileSystem {
  public:
    // What is written below `scratchFolder` (empty: nowhere) need not survive a power failure and
    // is not flushed.
    explicit WindowsFileSystem(const std::string& scratchFolder = {});

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
    Durability DurabilityOf(const std::wstring& path) const;
    void CopyContents(const std::wstring& source, const std::wstring& destination) const;

    std::wstring scratchFolder_;
};

}  // namespace morpho
