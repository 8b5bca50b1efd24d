#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/front_page.h"
#include "web_host/web_session.h"

namespace morpho {

// A folder of an open web. It is found by its names each time anew, through real folders only:
// nothing in the web, no link either, leads outside. While a save runs, what is done to the web's
// themes is part of it.
class DiskWebFolder : public WebFolder {
  public:
    // `path` leads to it from the web's own folder, as spelled on the disk. `files` has the files
    // to import.
    DiskWebFolder(std::shared_ptr<WebSession> web, const FileSystem& files, WebPath path)
        : web_(std::move(web)), files_(files), path_(std::move(path)) {}

    std::string Name() const override;
    std::string Url() const override;
    // The lists are read once: what other programs add shows in the next view of the folder.
    int FolderCount() const override;
    std::unique_ptr<WebFolder> FolderAt(int index) override;
    int FileCount() const override;
    WebFile FileAt(int index) const override;
    std::unique_ptr<WebFolder> FindFolder(std::string_view name) override;
    std::unique_ptr<WebFolder> AddFolder(std::string_view name) override;
    void AddFile(std::string_view localPath, bool overwrite) override;
    // The web's own folder is refused, and while a save runs every one that the save did not make.
    void Delete() override;

  private:
    // Names in order, letter case apart.
    struct ShownEntries {
        std::vector<std::string> folders;
        std::vector<std::string> files;
    };

    const ShownEntries& Entries() const;
    std::unique_ptr<Folder> Opened() const;
    std::unique_ptr<WebFolder> Inner(const std::string& name) const;
    bool IsThemesFolder() const;
    bool IsTheme() const;
    bool IsCreatedBySave() const;

    std::shared_ptr<WebSession> web_;
    const FileSystem& files_;
    WebPath path_;
    mutable std::optional<ShownEntries> entries_;
};

// The folder at an address in the web (see WebFiles::Find); null when there is none.
std::unique_ptr<WebFolder> LocateWebFolder(const std::shared_ptr<WebSession>& web,
                                           const FileSystem& files, std::string_view url);

}  // namespace morpho
