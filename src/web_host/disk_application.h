#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/front_page.h"
#include "web_host/active_page.h"
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
    // Asks `source` from now on which page is active; none is without it.
    void SetActivePage(ActivePageSource source) { activePage_ = std::move(source); }
    // Shows the web and its pages again in this way from now on; nothing to do without a window.
    void SetRefresh(std::function<void()> refresh) { refresh_ = std::move(refresh); }
    // Does what may take seconds in this way from now on.
    void SetLongWork(LongWork work);
    // Takes what happened to single pages, whenever a save has ended; often nothing. It comes from
    // the thread of the long work.
    void SetReporter(WebReports::Reporter reporter);

    std::string Version() const override { return options_.version; }
    std::unique_ptr<CommandBars> Bars() override { return bars_.View(); }
    // The page is read anew at each call: a change of one document is not in the next. Null also
    // where the page cannot be read, which the log tells. Releases before 5 hand out addresses as
    // the disk spells the names, later ones escape them: the editors resolve escapes accordingly.
    std::unique_ptr<PageDocument> ActiveDocument() override;
    // "/" means the web's own folder for its pages; a base may be relative to the web.
    std::string MakeAbs(std::string_view baseUrl, std::string_view url) const override;
    void RefreshViews() override {
        if (refresh_) refresh_();
    }
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
    bool EscapesAddresses() const { return !options_.version.starts_with("4."); }

    Disk& disk_;
    FileSystem& files_;
    std::string unpackFolder_;
    HostOptions options_;
    HostCommandBars bars_;
    WebReports::Log log_;
    WebReports::Reporter reporter_;
    LongWork work_;
    ActivePageSource activePage_;
    std::function<void()> refresh_;
    std::shared_ptr<WebSession> web_;
    std::string sourceOfSave_;
};

}  // namespace morpho
