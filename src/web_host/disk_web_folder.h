#pragma once

#include <memory>
#include <string>
#include <vector>

#include "web_host/web_session.h"

namespace morpho {

// A folder of an open web. It is found by its names each time anew, through real folders only:
// nothing in the web, no link either, leads outside.
class DiskWebFolder : public WebFolder {
  public:
    // `names` lead to it from the web's own folder, as spelled on the disk.
    DiskWebFolder(std::shared_ptr<WebSession> web, std::vector<std::string> names)
        : web_(std::move(web)), names_(std::move(names)) {}

    std::string Name() const override;
    std::string Url() const override;
    std::unique_ptr<WebFolder> FindFolder(std::string_view name) override;
    std::unique_ptr<WebFolder> AddFolder(std::string_view name) override;
    void AddFile(std::string_view localPath, bool overwrite) override;
    // The web's own folder is refused.
    void Delete() override;

  private:
    DiskFolder Folder() const;
    std::unique_ptr<WebFolder> Inner(const std::string& diskName) const;

    std::shared_ptr<WebSession> web_;
    std::vector<std::string> names_;
};

// The folder at an address in the web; null when there is none.
std::unique_ptr<WebFolder> LocateWebFolder(const std::shared_ptr<WebSession>& web,
                                           std::string_view url);

}  // namespace morpho
