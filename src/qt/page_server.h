#pragma once

#include <QUrl>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlSchemeHandler>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace morpho {

// Hands browser controls the files of their page's folder. Every browser control has a site, a
// made-up host name that stands for that folder; whatever is not below it, and every other address,
// is refused. Files are found without regard to letter case, and nothing is cached.
class PageServer {
  public:
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
    void Close(const std::string& site) { folders_.erase(site); }
    static bool IsOfScheme(const QUrl& url);

  private:
    class SchemeHandler;
    class Fence;

    // The Windows path that an address stands for; empty when it stands for none.
    std::string PathOf(const QUrl& url) const;

    const FileSystem& files_;
    std::map<std::string, std::string> folders_;  // by site, without a "\" at the end
    int sites_ = 0;
    std::unique_ptr<SchemeHandler> handler_;
    std::unique_ptr<Fence> fence_;
    std::unique_ptr<QWebEngineProfile> profile_;
};

}  // namespace morpho
