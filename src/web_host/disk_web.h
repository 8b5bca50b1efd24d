#pragma once

#include <memory>

#include "web_host/web_session.h"

namespace morpho {

// A view of an open web folder.
class DiskWeb : public Web {
  public:
    // Takes what is told of single pages.
    using Reporter = std::function<void(const std::vector<std::string>&)>;

    explicit DiskWeb(std::shared_ptr<WebSession> web, Reporter reporter = {})
        : web_(std::move(web)), reporter_(std::move(reporter)) {}

    int ThemeCount() const override;
    Theme ThemeAt(int index) const override;
    // Told from the web's pages as they are now (see ThemeOfWeb). Other properties are refused.
    std::string ThemeProperties(int which) const override;
    std::unique_ptr<WebWindow> ActiveWebWindow() override;
    std::string Url() const override { return web_->Url(); }
    std::unique_ptr<WebFolder> RootFolder() override;
    std::unique_ptr<WebFolder> LocateFolder(std::string_view url) override;
    // As the web's own notes say, "_vti_pvt/service.cnf".
    std::optional<std::string> Property(std::string_view key) const override;
    // See ApplyThemeToWeb. What there is to be told of pages goes to the reporter.
    void ApplyTheme(std::string_view themeName) override;
    // Lists the web's themes again and unpacks those that have come new.
    void Refresh() override;
    // Logs the pages' addresses that lead to what the web's themes do not have.
    void RecalcHyperlinks() override;

  private:
    std::shared_ptr<WebSession> web_;
    Reporter reporter_;
};

}  // namespace morpho
