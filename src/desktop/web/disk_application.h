#pragma once

#include <memory>
#include <optional>
#include <string>

#include "desktop/web/opened_web.h"

namespace morpho {

// A stand-in for release 6.0 of the host, whose web is a folder on disk. It never changes the web's
// own files.
class DiskApplication : public Application {
  public:
    // Themes are unpacked below `cacheFolder`, a path of the disk, into FrontPageTempDir/mstheme.
    explicit DiskApplication(const std::string& cacheFolder);

    // Opens the web in `folder`, a path of the disk, in place of the one that was open; see
    // OpenWebFolder for `onlyTheme`. Throws RunTimeError, and keeps what was open, when the folder
    // cannot be read.
    void Open(const std::string& folder, const std::optional<std::string>& onlyTheme = {});
    // Null when none is open.
    const OpenedWeb* Opened() const { return web_.get(); }

    std::string Version() const override { return "6.0"; }
    std::unique_ptr<Web> ActiveWeb() override;
    std::unique_ptr<LanguageSettings> Languages() const override;

  private:
    std::string unpackFolder_;
    std::shared_ptr<const OpenedWeb> web_;
};

}  // namespace morpho
