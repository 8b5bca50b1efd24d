#pragma once

#include <memory>
#include <optional>
#include <string>

#include "web_host/web_session.h"

namespace morpho {

// A stand-in for release 6.0 of the host, whose web is a folder on disk.
class DiskApplication : public Application {
  public:
    // Themes are unpacked below `cacheFolder`, a path of the disk, into FrontPageTempDir/mstheme.
    explicit DiskApplication(const std::string& cacheFolder);

    // Opens the web in `folder`, a path of the disk, in place of the one that was open; with
    // `onlyTheme` only that theme is made ready. With a store for the web its themes are installed
    // there, which the saving of a theme asks for. Throws RunTimeError, and keeps what was open,
    // when the folder cannot be read.
    void Open(const std::string& folder, const std::optional<std::string>& onlyTheme = {},
              const ThemeStores& stores = {});
    // Null when none is open.
    const OpenedWeb* Opened() const { return web_ ? &web_->opened : nullptr; }
    // The web that is open, for the host's other objects; null when none is.
    const std::shared_ptr<WebSession>& Session() const { return web_; }
    // What went wrong with single pages when a theme was last applied, a sentence each.
    std::vector<std::string> Reports() const;

    // Takes the host's own messages from now on: broken hyperlinks, pages that keep their theme.
    void SetLog(std::function<void(std::string_view)> log);
    // Takes what went wrong with single pages, whenever a theme has been applied and something has.
    void SetReporter(std::function<void(const std::vector<std::string>&)> reporter) {
        reporter_ = std::move(reporter);
    }
    // Makes the changes to webs opened from now on.
    void SetWriter(std::shared_ptr<WebWriter> writer) { writer_ = std::move(writer); }

    std::string Version() const override { return "6.0"; }
    std::unique_ptr<Web> ActiveWeb() override;
    std::unique_ptr<LanguageSettings> Languages() const override;

  private:
    std::string unpackFolder_;
    std::shared_ptr<WebWriter> writer_ = std::make_shared<WebWriter>();
    std::function<void(std::string_view)> log_;
    std::function<void(const std::vector<std::string>&)> reporter_;
    std::shared_ptr<WebSession> web_;
};

}  // namespace morpho
