#pragma once

#include <memory>

#include "desktop/web/opened_web.h"

namespace morpho {

// A view of an open web folder.
class DiskWeb : public Web {
  public:
    explicit DiskWeb(std::shared_ptr<const OpenedWeb> web) : web_(std::move(web)) {}

    int ThemeCount() const override;
    Theme ThemeAt(int index) const override;
    // Told from the web's pages as they are now (see ThemeOfWeb). Other properties are refused.
    std::string ThemeProperties(int which) const override;
    std::unique_ptr<WebWindow> ActiveWebWindow() override;

  private:
    std::shared_ptr<const OpenedWeb> web_;
};

}  // namespace morpho
