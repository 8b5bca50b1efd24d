#pragma once

#include <QStringList>
#include <QUrl>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlSchemeHandler>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace morpho {

// Hands browser controls the files of their page's folder, or of a web. Every browser control has a
// site, a made-up host name that stands for that folder; whatever is not below it, and every other
// address, is refused. Nothing is cached.
class PageServer {
  public:
    // The names that lead from a site's folder to a file; none of them is "." or "..".
    using Names = std::vector<std::string>;
    // Reads a file of a site, without regard to letter case; throws RunTimeError.
    using Source = std::function<std::string(const Names& names)>;

    // The files must outlive the server.
    explicit PageServer(const FileSystem& files);
    ~PageServer();
    PageServer(const PageServer&) = delete;
    PageServer& operator=(const PageServer&) = delete;

    // Makes the scheme known to the browser; must run before there is a QApplication.
    static void RegisterScheme();

    // The profile that pages are shown with; starting it starts the browser.
    QWebEngineProfile* Profile();

    std::string NewSite();
    // Makes the site serve the folder of this page (a Windows path) and returns the page's
    // address.
    QUrl Open(const std::string& site, std::string_view pagePath);
    // The same for a page in some folder of `source`.
    QUrl Open(const std::string& site, Source source, const Names& page);
    void Close(const std::string& site) { sources_.erase(site); }
    static bool IsOfScheme(const QUrl& url);
    // What an address of a site means; nothing for names that a file cannot have.
    static std::optional<Names> NamesIn(const QUrl& url);

  private:
    class SchemeHandler;
    class Fence;

    const FileSystem& files_;
    std::map<std::string, Source> sources_;  // by site
    int sites_ = 0;
    std::unique_ptr<SchemeHandler> handler_;
    std::unique_ptr<Fence> fence_;
    std::unique_ptr<QWebEngineProfile> profile_;
};

}  // namespace morpho
