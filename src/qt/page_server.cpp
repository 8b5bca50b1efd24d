#include "qt/page_server.h"

#include <QBuffer>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <exception>

#include "qt/qt_text.h"

namespace morpho {

namespace {

const char* const kScheme = "page";

QByteArray ContentType(const QString& path, const QByteArray& bytes) {
    return QMimeDatabase().mimeTypeForFileNameAndData(path, bytes).name().toLatin1();
}

bool IsPlainName(const QString& segment) {
    const bool dots = segment == "." || segment == "..";
    return !dots && !segment.contains(u':') && !segment.contains(QChar(u'\0'));
}

}  // namespace

class PageServer::SchemeHandler : public QWebEngineUrlSchemeHandler {
  public:
    explicit SchemeHandler(const PageServer& server) : server_(server) {}

    void requestStarted(QWebEngineUrlRequestJob* job) override {
        const std::string path = server_.PathOf(job->requestUrl());
        if (path.empty() || job->requestMethod() != "GET") {
            job->fail(QWebEngineUrlRequestJob::RequestDenied);
            return;
        }
        try {
            const std::string bytes = server_.files_.ReadFile(path);
            auto* const body = new QBuffer(job);
            body->setData(QByteArray::fromStdString(bytes));
            job->reply(ContentType(ToQt(path), body->data()), body);
        } catch (const std::exception&) {
            job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        }
    }

  private:
    const PageServer& server_;
};

// Refuses pages every address but those that are served here.
class PageServer::Fence : public QWebEngineUrlRequestInterceptor {
  public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override {
        const QUrl url = request.requestUrl();
        request.block(!IsOfScheme(url) && url.scheme() != "data" && url.scheme() != "about");
    }
};

PageServer::PageServer(const FileSystem& files) : files_(files) {}

PageServer::~PageServer() = default;

void PageServer::RegisterScheme() {
    QWebEngineUrlScheme scheme(kScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QWebEngineProfile* PageServer::Profile() {
    if (!profile_) {
        handler_ = std::make_unique<SchemeHandler>(*this);
        fence_ = std::make_unique<Fence>();
        profile_ = std::make_unique<QWebEngineProfile>();  // off the record: it has no name
        profile_->setHttpCacheType(QWebEngineProfile::NoCache);
        profile_->installUrlSchemeHandler(kScheme, handler_.get());
        profile_->setUrlRequestInterceptor(fence_.get());
    }
    return profile_.get();
}

std::string PageServer::NewSite() {
    return "site" + std::to_string(++sites_);
}

QUrl PageServer::Open(const std::string& site, std::string_view pagePath) {
    const std::size_t slash = pagePath.find_last_of('\\');
    if (slash == std::string_view::npos) return {};
    folders_[site] = pagePath.substr(0, slash);
    QUrl url;
    url.setScheme(kScheme);
    url.setHost(ToQt(site));
    url.setPath("/" + ToQt(pagePath.substr(slash + 1)));
    return url;
}

bool PageServer::IsOfScheme(const QUrl& url) {
    return url.scheme() == kScheme;
}

std::string PageServer::PathOf(const QUrl& url) const {
    const auto folder = folders_.find(FromQt(url.host()));
    if (folder == folders_.end()) return {};
    std::string path = folder->second;
    const QString inside = url.path(QUrl::FullyDecoded).replace('\\', '/');
    for (const QString& segment : inside.split('/', Qt::SkipEmptyParts)) {
        if (!IsPlainName(segment)) return {};
        path += "\\" + FromQt(segment);
    }
    return path;
}

}  // namespace morpho
