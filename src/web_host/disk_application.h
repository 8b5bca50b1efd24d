#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/front_page.h"
#include "web_host/host_command_bars.h"
#include "web_host/web_session.h"

namespace morpho {

struct HostOptions {
    std::string version = "6.0";           // the release that it plays; any text
    const Clipboard* clipboard = nullptr;  // for the faces of buttons; null for none
};

// A stand-in for the host, whose web is a folder on disk.
class DiskApplication : public Application {
  public:
    // All must outlive it. Themes are unpacked below `cacheFolder`, a Windows path, into
    // FrontPageTempDir\mstheme.
    DiskApplication(Disk& disk, FileSystem& files, const std::string& cacheFolder,
                    HostOptions options = {});

    // Opens the web in the folder `path`, a Windows path, in place of the one that was open; with
    // `onlyTheme` only that theme is made ready. With a store for the web its themes are installed
    // there, which the saving of a theme asks for. Throws RunTimeError, and keeps what was open,
    // when the folder cannot be read.
    void Open(const std::string& path, const std::optional<std::string>& onlyTheme = {},
              const ThemeStores& stores = {});
    // The web that is open, for the host's other objects; null when none is.
    const std::shared_ptr<WebSession>& Session() const { return web_; }
    // The files of this computer.
    FileSystem& Files() const { return files_; }

    // The menus and toolbars, for the window that shows them.
    HostCommandBars& HostBars() { return bars_; }

    // Takes the host's own messages from now on: broken hyperlinks, pages that keep their theme;
    // also from the thread of the long work.
    void SetLog(WebReports::Log log);
    // Does what may take seconds in this way from now on.
    void SetLongWork(LongWork work);
    // Takes what happened to single pages, whenever a save has ended; often nothing. It comes from
    // the thread of the long work.
    void SetReporter(WebReports::Reporter reporter);

    std::string Version() const override { return options_.version; }
    std::unique_ptr<CommandBars> Bars() override { return bars_.View(); }
    std::unique_ptr<Web> ActiveWeb() override;
    std::unique_ptr<LanguageSettings> Languages() const override;
    std::unique_ptr<SaveTransaction> BeginSave(std::string_view themeName,
                                               std::string_view sourceName) override;
    // The theme that the last save started from; empty before the first.
    const std::string& SourceOfSave() const { return sourceOfSave_; }
    // Gives a theme of the web, or of the user's own, to all pages that have the theme `earlier`:
    // those that name it themselves and, if it is the web's theme, those that take that. Throws
    // RunTimeError.
    void ApplyInPlaceOf(const std::string& themeName, const std::string& earlier);

  private:
    Disk& disk_;
    FileSystem& files_;
    std::string unpackFolder_;
    HostOptions options_;
    HostCommandBars bars_;
    WebReports::Log log_;
    WebReports::Reporter reporter_;
    LongWork work_;
    std::shared_ptr<WebSession> web_;
    std::string sourceOfSave_;
};

}  // namespace morpho
