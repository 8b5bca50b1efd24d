#pragma once

#include <memory>

#include "platform/file_system.h"
#include "platform/front_page.h"
#include "web_host/web_session.h"

namespace morpho {

// A view of an open web folder.
class DiskWeb : public Web {
  public:
    // `files` has the files that are imported into the web.
    DiskWeb(std::shared_ptr<WebSession> web, const FileSystem& files)
        : web_(std::move(web)), files_(files) {}

    int ThemeCount() const override;
    Theme ThemeAt(int index) const override;
    // Told from the web's pages as they are now (see ThemeOfWeb). Other properties are refused.
    std::string ThemeProperties(int which) const override;
    std::unique_ptr<WebWindow> ActiveWebWindow() override;
    // As the web's settings say, else the name of its folder.
    std::string Title() const override;
    std::string Url() const override { return web_->Files().Url(); }
    std::unique_ptr<WebFolder> RootFolder() override;
    std::unique_ptr<WebFolder> LocateFolder(std::string_view url) override;
    // As the web's own settings say, "_vti_pvt/service.cnf".
    std::optional<std::string> Property(std::string_view key) const override;
    // See WebSaveTransaction::ApplyTheme: as part of the save that is running, or as a change of
    // its own.
    void ApplyTheme(std::string_view themeName) override;
    // Lists the web's themes again and unpacks those that have come new.
    void Refresh() override;
    // Logs the pages' addresses that lead to what the web's themes do not have.
    void RecalcHyperlinks() override;

  private:
    std::shared_ptr<WebSession> web_;
    const FileSystem& files_;
};

}  // namespace morpho
