#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// Files in memory, on the drives C: and Z:. It fails when told to.
class FakeFileSystem : public FileSystem {
  public:
    FakeFileSystem();

    // Put an entry there, with the folders above it. These never fail.
    void PutFile(std::string_view path, std::string_view bytes,
                 FileAttributes attributes = kArchiveAttribute);
    void PutFolder(std::string_view path, FileAttributes attributes = 0);

    bool HasFile(std::string_view path) const;
    bool HasFolder(std::string_view path) const;
    // The file's bytes; a test failure when there is no such file.
    std::string Bytes(std::string_view path) const;
    // The paths of all files in the folder and below, sorted, as spelled and relative to it.
    std::vector<std::string> FilesBelow(std::string_view folder) const;

    // Every operation but Find that names this path (as source or destination) fails from now on.
    void FailOn(std::string_view path);
    // The nth operation but Find from now on fails; 1 is the next. Each file that is copied or
    // deleted with its folder counts. Where it "stays broken", all operations after it fail too, as
    // if the program had died there.
    void FailAt(int nth, bool staysBroken = false);
    void FailNoMore();
    // Whether the failure that FailAt announced has come.
    bool HasFailed() const { return failed_; }

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
    struct Node {
        std::string name;
        FileAttributes attributes = 0;
        std::string bytes;
        bool IsFolder() const { return (attributes & kFolderAttribute) != 0; }
        FileEntry Entry() const { return {name, attributes, bytes.size()}; }
    };
    // By path in lower case without doubled or trailing "\".
    using Nodes = std::map<std::string, Node>;

    void CountDown(std::string_view path) const;
    void Count(std::string_view path) const;
    const Node& File(std::string_view path) const;
    void RequireFolder(std::string_view path) const;
    void Store(std::string_view path, std::string_view bytes);
    Nodes Below(const std::string& key) const;

    Nodes nodes_;
    std::set<std::string> failingPaths_;
    mutable int untilFailure_ = 0;
    mutable bool failed_ = false;
    bool staysBroken_ = false;
};

}  // namespace morpho::test
